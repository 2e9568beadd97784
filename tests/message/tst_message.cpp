// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/messageproperties.h"
#include "../support/treetext.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTest>

#include <memory>

namespace {

template <std::size_t N>
QString oneOf(QRandomGenerator &random, const char *const (&texts)[N])
{
    return QString::fromUtf8(texts[random.bounded(int(N))]);
}

QString randomTime(QRandomGenerator &random)
{
    static const char *const texts[] = {"",           "5000ms", "5",    "2s",   "-1s",    "0",      "00:07",
                                        "indefinite", "media",  "soon", "3.5s", "99999h", "id.end", "1ms"};
    return oneOf(random, texts);
}

QString randomLength(QRandomGenerator &random)
{
    static const char *const texts[] = {"",    "0",   "10",   "33.3%", "50%",   "100%",
                                        "120", "-20", "12px", "wide",  "999999"};
    return oneOf(random, texts);
}

QString randomName(QRandomGenerator &random)
{
    static const char *const texts[] = {"",    "a.jpg", "A.JPG", "b.txt", "./b.txt",  "c%20d",
                                        "c d", "é.gif", "e",     "E",     "cid:a.jpg"};
    return oneOf(random, texts);
}

void grow(VySmilElemBase &elem, int depth, QRandomGenerator &random)
{
    static const char *const names[] = {"body",   "body",   "par",    "par",         "par",   "seq", "switch",
                                        "img",    "img",    "text",   "audio",       "video", "ref", "head",
                                        "layout", "region", "region", "root-layout", "Par",   "excl"};
    static const char *const regions[] = {"", "Image", "Text", "text", "Top"};
    const auto set = [&elem](const char *name, const QString &value) {
        if (!value.isEmpty())
            elem.setAttribute(name, value);
    };
    for (const char *name : {"begin", "end", "dur"})
        set(name, randomTime(random));
    for (const char *name : {"left", "top", "width", "height"})
        set(name, randomLength(random));
    for (const char *name : {"id", "region"})
        set(name, oneOf(random, regions));
    set("src", randomName(random));
    for (int i = depth > 0 ? random.bounded(5) : 0; i > 0; --i) {
        VySmilElemBase *child = VySmilElemBase::newElem(oneOf(random, names));
        elem.getSubElements()->append(child);
        grow(*child, depth - 1, random);
    }
}

QList<VySmilPart> randomParts(QRandomGenerator &random)
{
    static const char *const types[] = {"image/jpeg",       "image/gif",       "text/plain",
                                        "audio/amr",        "video/3gpp",      "text/x-vcard",
                                        "application/smil", "application/pdf", ""};
    QList<VySmilPart> parts;
    for (int i = random.bounded(6); i > 0; --i) {
        VySmilPart part;
        part.contentId = randomName(random);
        part.contentLocation = randomName(random);
        part.name = randomName(random);
        part.contentType = oneOf(random, types);
        part.durationMs = random.bounded(12'000) - 4'000;
        parts << part;
    }
    return parts;
}

/// What fromParts() makes of parts, a line each as in a case.
QString shownParts(const QString &lines)
{
    QList<VySmilPart> parts;
    for (const QString &line : lines.split(u'\n'))
        parts << MessageCase::partOf(line);
    VySmilSlideShowOptions options;
    options.screen = QSize(100, 51);
    options.defaultDurationMs = 2'000;
    return slidesText(VySmilSlideShow::fromParts(parts, options));
}

/// Findings as a line each: "E" or "W" with the number of the rule, and the text.
QString findingsText(const VySmilElemSmil &root, VySmilConformance::CONFORMANCE_LEVEL level,
                     const QList<VySmilPart> &parts = {})
{
    QStringList lines;
    for (const VySmilFinding &finding : VySmilConformance::check(root, level, parts)) {
        lines << QString(finding.severity == VySmilFinding::SEVERITY_ERROR ? "E%1 %2" : "W%1 %2")
                     .arg(finding.rule)
                     .arg(finding.toString());
    }
    return lines.join(u'\n');
}

} // namespace

class TestMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the messages of the corpus show, and what is found in them.
    void looksAtMessages_data()
    {
        QTest::addColumn<QString>("message");
        const QDir corpus(CORPUS);
        for (const QString &name : corpus.entryList({"*.message"})) {
            QFile file(corpus.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QTest::newRow(qPrintable(name.section(u'.', 0, 0))) << QString::fromUtf8(file.readAll());
        }
    }
    void looksAtMessages()
    {
        QFETCH(QString, message);
        const MessageCase expected(message);
        VySmilElemSmil root;
        QCOMPARE(VySmilParser::parse(expected.document, &root, false, nullptr, VySmil::SMIL_VER_DEFAULT), 0);
        QCOMPARE(brokenInMessage(root, expected.parts), QString());
        // What was in a slide show before does not shine through.
        VySmilSlideShow show;
        show.slides.resize(3);
        show.unusedParts << 7;
        show.guesses = VySmilMedium::GUESS_PART;
        const int result = show.fromTree(root, expected.parts);
        QCOMPARE(result, show.slides.isEmpty() ? 3 : 0);
        QVERIFY(expected.sections.contains("shows") || expected.sections.contains("strict"));
        if (expected.sections.contains("shows"))
            QCOMPARE(slidesText(show), expected.sections.value("shows"));
        if (!expected.sections.contains("strict"))
            return;
        QCOMPARE(findingsText(root, VySmilConformance::LEVEL_STRICT, expected.parts),
                 expected.sections.value("strict"));
        QCOMPARE(findingsText(root, VySmilConformance::LEVEL_RELAXED, expected.parts),
                 expected.sections.value("relaxed"));
    }

    void fillsInOptions_data()
    {
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<qint32>("duration");
        QTest::addColumn<QString>("shows");
        QTest::newRow("given") << QSize(50, 60) << 7
                               << "50x30 size?\nslide 7 time?\n image \"\" 0,0 50x30 0-7 region?";
        QTest::newRow("none") << QSize() << 0
                              << "320x240 size?\nslide 5000 time?\n image \"\" 0,0 320x240 0-5000 region?";
        QTest::newRow("negative")
            << QSize(-5, 70'000) << -1
            << "320x32768 size?\nslide 5000 time?\n image \"\" 0,0 320x32768 0-5000 region?";
    }
    void fillsInOptions()
    {
        QFETCH(QSize, screen);
        QFETCH(qint32, duration);
        VySmilElemSmil root;
        VySmilParser::parse("<smil><head><layout><root-layout "
                            "height='50%'/></layout></head><body><par><img/></par></body></smil>",
                            &root, false, nullptr, VySmil::SMIL_VER_DEFAULT);
        VySmilSlideShowOptions options;
        options.screen = screen;
        options.defaultDurationMs = duration;
        VySmilSlideShow show;
        show.fromTree(root, {}, options);
        QTEST(slidesText(show), "shows");
    }

    void tellsWhatIsThereAt()
    {
        VySmilSlide slide;
        slide.durationMs = 9;
        slide.media.resize(3);
        slide.media[0].endMs = 9;
        slide.media[1].beginMs = 2;
        slide.media[1].endMs = 5;
        slide.media[2].beginMs = slide.media[2].endMs = 5;
        QCOMPARE(slide.instants(), QList<qint32>({0, 2, 5, 9}));
        QCOMPARE(slide.mediaAt(-1), QList<int>());
        QCOMPARE(slide.mediaAt(2), QList<int>({0, 1}));
        QCOMPARE(slide.mediaAt(5), QList<int>({0}));
        QCOMPARE(slide.mediaAt(9), QList<int>());
    }

    void makesSlidesOfParts_data()
    {
        QTest::addColumn<QString>("parts");
        QTest::addColumn<QString>("shows");
        const auto row = [](const char *name, const char *parts, const char *shows) {
            QTest::newRow(name) << QString(parts) << "100x51\n" + QString(shows);
        };
        row("caption behind and before", "|a||image/gif\n|b||text/plain\n|c||text/plain\n|d||image/gif",
            "slide 2000\n image \"a\" 0,0 100x41 0-2000 part 0\n text \"b\" 0,41 100x10 0-2000 part 1\n"
            "slide 2000\n text \"c\" 0,41 100x10 0-2000 part 2\n image \"d\" 0,0 100x41 0-2000 part 3");
        row("video has sound", "|a||video/3gpp|3000\n|b||audio/amr|700\n|c||text/plain|9000",
            "slide 3000\n video \"a\" 0,0 100x51 0-3000 part 0\n"
            "slide 700\n audio \"b\" 0-700 part 1\n text \"c\" 0,0 100x51 0-700 part 2");
        row("longest sound counts, no picture", "|a||image/gif|9000\n|b||audio/amr|700\n|c||video/3gpp|0",
            "slide 700\n image \"a\" 0,0 100x51 0-700 part 0\n audio \"b\" 0-700 part 1\n"
            "slide 2000\n video \"c\" 0,0 100x51 0-2000 part 2");
        row("others stay out", "|s||application/smil\n|v||text/x-vcard\n|p||application/pdf\n|t||text/html",
            "slide 2000\n text \"t\" 0,0 100x51 0-2000 part 3\nunused part 0\nunused part 1\nunused part "
            "2");
        row("nothing at all", "||||", "unused part 0");
    }
    void makesSlidesOfParts()
    {
        QFETCH(QString, parts);
        QTEST(shownParts(parts), "shows");
    }

    void namesParts_data()
    {
        QTest::addColumn<QString>("brought");
        QTest::addColumn<QString>("named");
        QTest::newRow("by their names") << "||a b.jpg\n||Ünï-1_2.gif\n||"
                                        << "a_b.jpg a_b.jpg|_n_-1_2.gif _n_-1_2.gif|part3 part3";
        QTest::newRow("unique in any case")
            << "||a.jpg\n||A.JPG\n||a.jpg\n||a-2.jpg\nx|||"
            << "a-3.jpg a-3.jpg|A-4.JPG A-4.JPG|a-5.jpg a-5.jpg|a-2.jpg a-2.jpg|x ";
        QTest::newRow("not what others are called")
            << "||x\nX||\n|y|\n||Y\n||z.z.z\n||z.z.z"
            << "x-2 x-2|X | y|Y-2 Y-2|z.z-2.z z.z-2.z|z.z-3.z z.z-3.z";
        QTest::newRow("brought texts stay") << "é||a\n|é|b\nc|é|\n|d|"
                                            << "é a|b é|c é| d";
        QTest::newRow("one location twice") << "|a.jpg|\n|a.jpg|b.jpg"
                                            << " a.jpg|b.jpg a.jpg";
    }
    void namesParts()
    {
        QFETCH(QString, brought);
        QList<VySmilPart> parts;
        for (const QString &line : brought.split(u'\n'))
            parts << MessageCase::partOf(line);
        for (VySmilPart &part : parts)
            part.contentType = "image/gif";
        VySmilSlideShow::fromParts(parts);
        QStringList named;
        for (const VySmilPart &part : parts)
            named << part.contentId + u' ' + part.contentLocation;
        QTEST(named.join(u'|'), "named");
    }

    void writesDocuments()
    {
        QList<VySmilPart> parts{
            MessageCase::partOf("|a.jpg||image/jpeg"), MessageCase::partOf("<s@x>|é||audio/amr|700"),
            MessageCase::partOf("|b.txt||text/plain"), MessageCase::partOf("<é>|ü||image/gif")};
        VySmilSlideShow show = VySmilSlideShow::fromParts(parts);
        show.slides[0].durationMs = 1'000;
        show.slides[0].media[0].beginMs = 300;
        show.slides[1].media[0].src.clear();
        show.slides[1].media[0].rect = QRect(10, 300, 400, 400);
        show.slides[1].media[0].fit = "slice";
        show.slides[1].durationMs = 0;
        VySmilElemSmil root;
        root.setAttribute("id", "kept");
        root.getSubElements()->append(new VySmilElemBody);
        show.toTree(&root, parts);
        QCOMPARE(treeText(root), "smil[id=kept](head(layout(root-layout[height=480 width=320] "
                                 "region[fit=meet height=384 id=Image left=0 top=0 width=320] "
                                 "region[fit=scroll height=96 id=Text left=0 top=384 width=320] "
                                 "region[fit=slice height=180 id=Image2 left=10 top=300 width=310])) "
                                 "body(par[dur=1000ms](img[begin=300ms end=700ms region=Image src=a.jpg] "
                                 "audio[end=700ms src=cid:s@x] text[end=700ms region=Text src=b.txt]) "
                                 "par[dur=5000ms](img[region=Image2 src=cid:%C3%A9])))");
        show.toTree(nullptr, parts);
    }

    void keepsItsPromises()
    {
        QRandomGenerator random(20'261'123);
        for (int i = 0; i < 300; ++i) {
            VySmilElemSmil root;
            grow(root, 5, random);
            const QList<VySmilPart> parts = randomParts(random);
            QCOMPARE(brokenInMessage(root, parts), QString());
            QCOMPARE(brokenInParts(parts), QString());
        }
    }

    void takesNoStackForDepth()
    {
        VySmilElemSmil root;
        VySmilElemBase *inner = &root;
        for (int i = 0; i < 100'000; ++i) {
            VySmilElemBase *child = VySmilElemBase::newElem(i % 3 == 0 ? "seq" : i % 3 == 1 ? "par" : "img");
            inner->getSubElements()->append(child);
            inner = child;
        }
        VySmilSlideShow show;
        QCOMPARE(show.fromTree(root), 0);
        QCOMPARE(show.slides.size(), 1);
        QCOMPARE(show.slides.first().media.size(), 33'333);
        const auto findings = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT);
        QVERIFY(findings.size() > 100'000);
        QVERIFY(findings.last().path.size() < 100);
    }

    // What reading never makes: a client alone does.
    void findsNamesInTheWrongLetterCase()
    {
        VySmilElemSmil root;
        VySmilParser::parse("<smil><body><par dur='1ms'><audio src='a'/></par></body></smil>", &root, false,
                            nullptr, VySmil::SMIL_VER_DEFAULT);
        auto *elem = new VySmilElemUnknown;
        elem->setElemType(" PAR\n");
        root.getSubElements()->at(0)->getSubElements()->append(elem);
        const QString path = QStringLiteral(" body/ PAR") + QChar::ReplacementCharacter + ": is not in ";
        for (const auto &[level, severity] : {std::pair(VySmilConformance::LEVEL_STRICT, "E"),
                                              std::pair(VySmilConformance::LEVEL_RELAXED, "W")}) {
            QCOMPARE(findingsText(root, level),
                     severity + QString("0") + path + "the vocabulary\nE11" + path + "lower case");
            QCOMPARE(VySmilConformance::check(root, level).first().elem, elem);
        }
    }

    void shortensPaths()
    {
        VySmilElemSmil root;
        VySmilElemBase *inner = &root;
        for (int i = 1; i <= 17; ++i) {
            VySmilElemBase *elem = VySmilElemBase::newElem(QString("e%1").arg(i));
            inner->getSubElements()->append(elem);
            inner = elem;
            const QString path = VySmilConformance::check(root, VySmilConformance::LEVEL_RELAXED).last().path;
            const QString last = QString("e%1").arg(i);
            QVERIFY(path.endsWith(last));
            QCOMPARE(path.count(u'/'), qMin(i - 1, 16));
            QCOMPARE(path.startsWith(i == 17 ? ".../e2/" : "e1"), true);
        }
    }
};

QTEST_GUILESS_MAIN(TestMessage)
#include "tst_message.moc"
