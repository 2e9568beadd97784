// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/messagecase.h"
#include "../support/treetext.h"

#include <QMetaProperty>
#include <QTest>

namespace {

/// Writes every property of \a value anew, one at a time: each alone makes it unequal.
template <typename T>
QString unequalFields()
{
    QStringList names;
    const QMetaObject &meta = T::staticMetaObject;
    for (int i = 0; i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const int type = property.metaType().id();
        T value;
        QVariant other;
        if (type == QMetaType::QString)
            other = "other";
        else if (type == QMetaType::QColor)
            other = QColor(1, 2, 3);
        else if (type == QMetaType::QRect)
            other = QRect(1, 2, 3, 4);
        else if (type == QMetaType::QSize)
            other = QSize(1, 2);
        else if (type == qMetaTypeId<QList<int>>())
            other = QVariant::fromValue(QList<int>{1});
        else if (type == qMetaTypeId<QList<VySmilMedium>>())
            other = QVariant::fromValue(QList<VySmilMedium>(1));
        else if (type == qMetaTypeId<QList<VySmilSlide>>())
            other = QVariant::fromValue(QList<VySmilSlide>(1));
        else
            other = 2;
        const bool isWritten = property.writeOnGadget(&value, other);
        names << (isWritten && value != T() && !(value == T()) ? property.name() : "same: ");
    }
    return names.join(u' ');
}

} // namespace

class TestMessageValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scalesPictures_data()
    {
        QTest::addColumn<QString>("fit");
        QTest::addColumn<QSize>("area");
        QTest::addColumn<QSize>("natural");
        QTest::addColumn<QSize>("shown");
        const auto row = [](const char *fit, QSize area, QSize natural, QSize shown) {
            QTest::addRow("%s %dx%d in %dx%d", fit, natural.width(), natural.height(), area.width(),
                          area.height())
                << fit << area << natural << shown;
        };
        const QSize area(100, 50);
        const QSize tall(10, 40);
        const QSize wide(400, 100);
        row("fill", area, tall, area);
        row(" fill\n", area, wide, area);
        for (const char *fit : {"meet", "", "odd", "Fill", "SLICE", "Hidden"}) {
            row(fit, area, tall, QSize(13, 50));
            row(fit, area, wide, QSize(100, 25));
        }
        row("slice", area, tall, QSize(100, 400));
        row(" slice", area, wide, QSize(200, 50));
        for (const char *fit : {"hidden", "scroll ", "hidden\t"}) {
            row(fit, area, tall, tall);
            row(fit, area, QSize(65'536, 1), QSize(65'535, 1));
        }
        // Half up, and never nothing.
        row("meet", QSize(3, 3), QSize(2, 1), QSize(3, 2));
        row("meet", QSize(5, 5), QSize(50, 25), QSize(5, 3));
        row("meet", QSize(5, 5), QSize(5'001, 2'500), QSize(5, 2));
        row("meet", QSize(100, 10), QSize(3'000, 1), QSize(100, 1));
        row("meet", QSize(10, 100), QSize(1, 3'000), QSize(1, 100));
        row("slice", QSize(100, 10), QSize(1, 3'000), QSize(100, 65'535));
        row("slice", QSize(10, 100), QSize(2'147'483'647, 1), QSize(65'535, 100));
        row("meet", QSize(65'535, 65'535), QSize(2'147'483'647, 2'147'483'647), QSize(65'535, 65'535));
        row("fill", QSize(70'000, 1), tall, QSize(65'535, 1));
        row("meet", QSize(70'000, 70'000), QSize(1, 1), QSize(65'535, 65'535));
        for (const char *fit : {"fill", "meet", "slice", "hidden"}) {
            row(fit, area, QSize(0, 5), QSize());
            row(fit, area, QSize(5, -1), QSize());
            row(fit, QSize(), tall, QSize());
            row(fit, QSize(0, 7), tall, QSize());
        }
    }
    void scalesPictures()
    {
        QFETCH(QString, fit);
        QFETCH(QSize, area);
        QFETCH(QSize, natural);
        QFETCH(QSize, shown);
        VySmilMedium medium;
        medium.fit = fit;
        medium.area = QRect(QPoint(-7, 9), area);
        medium.rect = QRect(0, 0, 1, 1);
        if (shown.isValid())
            QCOMPARE(medium.shownSize(natural), shown);
        else
            QVERIFY(medium.shownSize(natural).isEmpty());
    }

    void tellsWhatIsThereAt()
    {
        VySmilSlide slide;
        slide.media.resize(4);
        slide.media[1].beginMs = 2;
        slide.media[1].endMs = 5;
        slide.media[2].beginMs = slide.media[2].endMs = 5;
        slide.media[3].beginMs = 5'000;
        for (const qint32 duration : {0, -7, 5'000}) {
            slide.durationMs = duration;
            QCOMPARE(slide.endOf(slide.media[0]), 5'000);
            QCOMPARE(slide.endOf(slide.media[1]), 5);
            QCOMPARE(slide.instants(), QList<qint32>({0, 2, 5, 5'000}));
            QCOMPARE(slide.mediaAt(-1), QList<int>());
            QCOMPARE(slide.mediaAt(1), QList<int>({0}));
            QCOMPARE(slide.mediaAt(2), QList<int>({0, 1}));
            QCOMPARE(slide.mediaAt(5), QList<int>({0}));
            QCOMPARE(slide.mediaAt(4'999), QList<int>({0}));
            QCOMPARE(slide.mediaAt(5'000), QList<int>());
        }
        slide.media[1].endMs = 0;
        QCOMPARE(slide.endOf(slide.media[1]), 0);
        QCOMPARE(VySmilSlide().instants(), QList<qint32>({0, 5'000}));
    }

    void makesMediaOfParts()
    {
        QList<VySmilPart> parts;
        for (const char *line :
             {"|a||image/gif|7", "<b>|||video/mp4", "||c|Text/plain", "|a b|d|audio/amr",
              "|e e|a|application/pdf", "|\u00e9||text/x-vcard", "<\u00fc~>|a|a|image/png",
              "|s||application/smil", "||a|image/gif", "x|y|z|image/gif", "x|Y|z|image/gif"})
            parts << MessageCase::partOf(QString::fromUtf8(line));
        const auto textOf = [&parts](int part) {
            VySmilMedium medium = VySmilMedium::ofPart(parts, part);
            const VySmilMedium plain = medium;
            medium.src.clear();
            medium.fit.clear();
            medium.part = -1;
            medium.kind = VySmilMedium::MEDIUM_OTHER;
            return medium == VySmilMedium()
                       ? QString("%1 %2 %3 %4").arg(plain.kind).arg(plain.part).arg(plain.src, plain.fit)
                       : "more than a part gives";
        };
        static const char *const expected[] = {
            "0 0  meet",  "3 1 cid:b meet", "1 2 c scroll",        "2 3 d ",
            "4 4 e%20e ", "4 5 %C3%A9 ",    "0 6 cid:%C3%BC~ meet"};
        for (int i = 1; i < 7; ++i)
            QCOMPARE(textOf(i), QString(expected[i]));
        QCOMPARE(textOf(8), QString("0 8  meet"));
        QCOMPARE(textOf(9), QString("0 9 y meet"));
        QCOMPARE(textOf(10), QString("0 10 Y meet"));
        for (const int none : {-1, 11})
            QCOMPARE(VySmilMedium::ofPart(parts, none), VySmilMedium());
        parts = {parts[0]};
        QCOMPARE(textOf(0), QString("0 0 a meet"));
    }

    void knowsTheSmil()
    {
        const auto isSmil = [](const char *type) {
            return MessageCase::partOf(QString("|||") + type).isSmil();
        };
        for (const char *type : {"application/smil", " Application/SMIL ; charset=utf-8",
                                 "application/smil+xml", "application/x-smil"})
            QVERIFY2(isSmil(type), type);
        for (const char *type :
             {"", "smil", "application/smil+x", "text/smil", "application/xsmil", "x;application/smil"})
            QVERIFY2(!isSmil(type), type);
    }

    // Slides made by hand, with all that a client may leave out or get wrong.
    void writesWhatIsMadeByHand()
    {
        QList<VySmilPart> parts;
        for (const char *line : {"|a.jpg||image/jpeg", "<s@x>|\u00e9||audio/amr|700", "|b.txt||text/plain"})
            parts << MessageCase::partOf(QString::fromUtf8(line));
        VySmilSlideShow show;
        show.slides.resize(2);
        for (int i = 0; i < 3; ++i)
            show.slides[0].media << VySmilMedium::ofPart(parts, i);
        show.slides[0].media[0].src = " ";
        show.slides[0].media[0].rect = QRect(300, -10, 400, 100);
        show.slides[0].media[2].beginMs = 300;
        show.slides[1].durationMs = -1;
        show.slides[1].media.resize(3);
        show.slides[1].media[0].part = 3;
        show.slides[1].media[1].kind = VySmilMedium::MEDIUM_IMAGE;
        show.slides[1].media[1].src = "A.JPG";
        show.slides[1].media[2].src = "cid:\u00e9";
        show.slides[1].media[2].kind = VySmilMedium::MEDIUM_AUDIO;
        VySmilElemSmil root;
        root.setAttribute("id", "s");
        show.toTree(&root, parts);
        const QString layout = "smil(head(layout(root-layout[height=480 width=320] "
                               "region[fit=meet height=90 id=Image left=300 top=0 width=20] "
                               "region[fit=scroll height=96 id=Text left=0 top=384 width=320] "
                               "region[height=384 id=Image2 left=0 top=0 width=320])) ";
        QCOMPARE(treeText(root),
                 layout +
                     "body(par[dur=5000ms](img[region=Image src=a.jpg] audio[end=5000ms src=cid:s@x] "
                     "text[begin=300ms region=Text src=b.txt]) "
                     "par[dur=5000ms](ref img[region=Image2 src=A.JPG] audio[end=5000ms src=cid:s@x])))");
        show.toTree(nullptr, parts);
    }

    // A show without size is as large as the usual screen, side by side; none is larger than lengths are.
    void writesUsableSizes()
    {
        const auto written = [](QSize size) {
            VySmilSlideShow show;
            show.size = size;
            VySmilElemSmil root;
            show.toTree(&root);
            return treeText(root).section(u']', 0, 0).section(u'[', 1);
        };
        QCOMPARE(written(QSize()), QString("height=480 width=320"));
        QCOMPARE(written(QSize(0, 1)), QString("height=1 width=320"));
        QCOMPARE(written(QSize(70'000, -5)), QString("height=480 width=65535"));
        QCOMPARE(written(QSize(65'535, 65'536)), QString("height=65535 width=65535"));
    }

    void comparesAndTellsFields()
    {
        QCOMPARE(unequalFields<VySmilPart>(),
                 QString("contentId contentLocation name contentType durationMs"));
        QCOMPARE(unequalFields<VySmilMedium>(),
                 QString("kind src alt region fit part rect area background foreground "
                         "beginMs endMs guesses"));
        QCOMPARE(unequalFields<VySmilSlide>(), QString("durationMs media guesses"));
        QCOMPARE(unequalFields<VySmilSlideShow>(), QString("size slides unusedParts background guesses"));
        QCOMPARE(unequalFields<VySmilSlideShowOptions>(), QString("screen defaultDurationMs"));
        VySmilElemSmil root;
        VySmilMedium medium;
        medium.elem = medium.regionElem = &root;
        VySmilSlide slide;
        slide.elem = &root;
        QVERIFY(medium == VySmilMedium() && slide == VySmilSlide());
    }

    void tellsEnumerators()
    {
        const auto keys = [](const QMetaEnum &of) {
            QStringList all;
            for (int i = 0; i < of.keyCount(); ++i)
                all << QString("%1 %2").arg(of.key(i)).arg(of.value(i));
            return all.join(u' ');
        };
        QCOMPARE(keys(QMetaEnum::fromType<VySmilMedium::MEDIUM_KIND>()),
                 QString("MEDIUM_IMAGE 0 MEDIUM_TEXT 1 MEDIUM_AUDIO 2 MEDIUM_VIDEO 3 MEDIUM_OTHER 4"));
        QCOMPARE(keys(QMetaEnum::fromType<VySmilMedium::GUESSES>()),
                 QString("GUESS_SIZE 1 GUESS_REGION 2 GUESS_TIME 4 GUESS_PART 8 GUESS_SCREEN 16"));
        QCOMPARE(keys(QMetaEnum::fromType<VySmilFinding::SEVERITY>()),
                 QString("SEVERITY_ERROR 0 SEVERITY_WARNING 1"));
        QCOMPARE(keys(QMetaEnum::fromType<VySmilConformance::CONFORMANCE_LEVEL>()),
                 QString("LEVEL_STRICT 0 LEVEL_RELAXED 1"));
        const QStringList rules = keys(QMetaEnum::fromType<VySmilFinding::RULE>()).split(u' ');
        QCOMPARE(rules.size(), 26);
        QCOMPARE(rules.mid(0, 2).join(u' '), QString("RULE_VOCABULARY 0"));
        QCOMPARE(rules.mid(24).join(u' '), QString("RULE_NEVER_SHOWN 12"));
    }
};

QTEST_GUILESS_MAIN(TestMessageValues)
#include "tst_messagevalues.moc"
