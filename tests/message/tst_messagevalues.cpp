// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/messagecase.h"
#include "../support/treetext.h"

#include <QMetaProperty>
#include <QTest>

namespace {

/// Writes every property anew, one at a time, and names those that each alone make a value unequal.
template <typename T>
QString unequalFields()
{
    QStringList names;
    for (int i = 0; i < T::staticMetaObject.propertyCount(); ++i) {
        const QMetaProperty property = T::staticMetaObject.property(i);
        QVariant other = 2; // enumerators are numbers
        for (const QVariant &each :
             {QVariant("other"), QVariant(QColor(1, 2, 3)), QVariant(QRect(1, 2, 3, 4)),
              QVariant(QSize(1, 2)), QVariant::fromValue(QList<int>{1}),
              QVariant::fromValue(QList<VySmilMedium>(1)), QVariant::fromValue(QList<VySmilSlide>(1))}) {
            if (each.metaType() == property.metaType())
                other = each;
        }
        T value;
        if (property.writeOnGadget(&value, other) && value != T() && !(value == T()))
            names << property.name();
    }
    return names.join(u' ');
}

} // namespace

class TestMessageValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scalesPictures()
    {
        const QSize area(100, 50), tall(10, 40), wide(400, 100);
        const std::tuple<const char *, QSize, QSize, QSize> rows[] = {
            {"fill| fill\n", area, tall, area},
            {"meet||odd|Fill|SLICE|Hidden", area, tall, {13, 50}},
            {"meet||odd|Fill|SLICE|Hidden", area, wide, {100, 25}},
            {"slice", area, tall, {100, 400}},
            {" slice", area, wide, {200, 50}},
            {"hidden|scroll |hidden\t", area, {65'536, 1}, {65'535, 1}},
            // Half up, and never nothing.
            {"meet", {3, 3}, {2, 1}, {3, 2}},
            {"meet", {5, 5}, {5'001, 2'500}, {5, 2}},
            {"meet", {100, 10}, {3'000, 1}, {100, 1}},
            {"meet", {10, 100}, {1, 3'000}, {1, 100}},
            {"slice", {10, 100}, {2'147'483'647, 1}, {65'535, 100}},
            {"meet", {65'535, 65'535}, {2'147'483'647, 2'147'483'647}, {65'535, 65'535}},
            {"fill", {70'000, 1}, tall, {65'535, 1}},
            {"fill|meet|slice|hidden", area, {0, 5}, {}},
            {"fill|meet|slice|hidden", area, {5, -1}, {}},
            {"fill|meet|slice|hidden", {0, 7}, tall, {}},
        };
        for (const auto &[fits, within, natural, shown] : rows) {
            for (const QString &fit : QString(fits).split(u'|')) {
                VySmilMedium medium;
                medium.fit = fit;
                medium.area = QRect(QPoint(-7, 9), within);
                QCOMPARE(medium.shownSize(natural), shown);
            }
        }
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
            QCOMPARE(slide.instants(), QList<qint32>({0, 2, 5, 5'000}));
            QList<QList<int>> there;
            for (const qint32 ms : {-1, 1, 2, 5, 4'999, 5'000})
                there << slide.mediaAt(ms);
            QCOMPARE(there, QList<QList<int>>({{}, {0}, {0, 1}, {0}, {0}, {}}));
        }
        slide.media[1].endMs = 0;
        QCOMPARE(slide.endOf(slide.media[1]), 0);
    }

    // Slides made by hand, with all that a client may leave out or get wrong. What has no size is as large as
    // the usual screen, and none is larger than lengths are.
    void writesWhatIsMadeByHand()
    {
        QList<VySmilPart> parts;
        for (const char *line : {"|a.jpg||image/jpeg", "<s@x>|\u00e9||audio/amr|700", "|b?.txt||text/plain"})
            parts << MessageCase::partOf(line);
        VySmilSlideShow show;
        show.size = QSize(65'536, 0);
        show.slides.resize(2);
        show.slides[1].durationMs = -1;
        QList<VySmilMedium> &first = show.slides[0].media;
        for (int i = -1; i <= 3; ++i)
            first << VySmilMedium::ofPart(parts, i);
        QVERIFY(first.takeFirst() == VySmilMedium() && first.takeLast() == VySmilMedium());
        first[0].src = " ";
        first[0].rect = QRect(65'500, -10, 400, 100);
        first[2].beginMs = 300;
        QList<VySmilMedium> &second = show.slides[1].media;
        second.resize(3);
        second[0].part = 3;
        second[0].src = QString("%62") + QChar(0xd800) + ".txt"; // half a pair is no "?"
        second[1].kind = VySmilMedium::MEDIUM_IMAGE;
        second[1].src = "A.JPG";
        second[1].rect = QRect(100, 0, -50, 10); // turned round it would be one
        second[2].src = "cid:\u00e9";
        second[2].kind = VySmilMedium::MEDIUM_AUDIO;
        VySmilElemSmil root;
        root.setAttribute("id", "s");
        show.toTree(&root, parts);
        QCOMPARE(treeText(root).split(u')'),
                 QString("smil(head(layout(root-layout[height=480 width=65535] "
                         "region[fit=meet height=90 id=Image left=65500 top=0 width=35] "
                         "region[fit=scroll height=96 id=Text left=0 top=384 width=65535] "
                         "region[height=384 id=Image2 left=0 top=0 width=65535])) "
                         "body(par[dur=5000ms](img[region=Image src=a.jpg] audio[end=5000ms src=cid:s@x] "
                         "text[begin=300ms region=Text src=b?.txt]) "
                         "par[dur=5000ms](ref[src=%1] img[region=Image2 src=A.JPG] "
                         "audio[end=5000ms src=cid:s@x])))")
                     .arg(second[0].src)
                     .split(u')'));
        show.toTree(nullptr, parts);
    }

    // Sound has no place that others make room for, and nothing begins before its slide does.
    void passesOverWhatCannotBe()
    {
        VySmilSlideShow show;
        show.size = QSize(100, 50);
        show.slides.resize(1);
        QList<VySmilMedium> &media = show.slides[0].media;
        media.resize(3);
        media[0].kind = media[1].kind = VySmilMedium::MEDIUM_TEXT;
        media[0].beginMs = -5;
        media[2].kind = VySmilMedium::MEDIUM_AUDIO;
        media[2].rect = QRect(0, 0, 1, 1);
        show.splitSlides();
        VySmilElemSmil root;
        show.toTree(&root);
        QCOMPARE(treeText(root),
                 "smil(head(layout(root-layout[height=50 width=100] "
                 "region[height=50 id=Text left=0 top=0 width=100])) "
                 "body(par[dur=5000ms](text[region=Text] audio) par[dur=5000ms](text[region=Text])))");
    }

    void comparesAndTellsFields()
    {
        QCOMPARE(unequalFields<VySmilPart>(), "contentId contentLocation name contentType durationMs");
        QCOMPARE(unequalFields<VySmilMedium>(),
                 "kind src alt region fit part rect area background foreground "
                 "beginMs endMs guesses");
        QCOMPARE(unequalFields<VySmilSlide>(), "durationMs media guesses");
        QCOMPARE(unequalFields<VySmilSlideShow>(), "size slides unusedParts background guesses");
        QCOMPARE(unequalFields<VySmilSlideShowOptions>(), "screen defaultDurationMs");
        QCOMPARE(unequalFields<VySmilFinding>(), "rule severity attribute path message");
        // Clients have these numbers compiled in; the names are in the answers of the corpus.
        QCOMPARE(QList<int>({VySmilMedium::MEDIUM_OTHER, VySmilMedium::GUESS_SCREEN, VySmilMedium::GUESS_TIME,
                             VySmilConformance::LEVEL_RELAXED, VySmilFinding::RULE_NEVER_SHOWN}),
                 QList<int>({4, 16, 4, 1, 12}));
    }
};

QTEST_GUILESS_MAIN(TestMessageValues)
#include "tst_messagevalues.moc"
