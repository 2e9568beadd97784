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

/// What fromParts() makes of parts, and how it names them.
QString composedText(QList<VySmilPart> parts)
{
    VySmilSlideShowOptions options;
    options.screen = QSize(100, 51);
    options.defaultDurationMs = 2'000;
    QString text = slidesText(VySmilSlideShow::fromParts(parts, options));
    for (const VySmilPart &part : std::as_const(parts))
        text += "\n<" + part.contentId + "> " + part.contentLocation;
    return text.trimmed();
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
        QVERIFY(expected.sections.contains("shows") || expected.sections.contains("strict") ||
                expected.sections.contains("composes"));
        if (expected.sections.contains("composes"))
            QCOMPARE(composedText(expected.parts), expected.sections.value("composes"));
        if (expected.sections.contains("shows"))
            QCOMPARE(slidesText(show), expected.sections.value("shows"));
        if (!expected.sections.contains("strict"))
            return;
        QCOMPARE(findingsText(root, VySmilConformance::LEVEL_STRICT, expected.parts),
                 expected.sections.value("strict"));
        QCOMPARE(findingsText(root, VySmilConformance::LEVEL_RELAXED, expected.parts),
                 expected.sections.value("relaxed"));
    }

    void fillsInOptions()
    {
        VySmilElemSmil root;
        VySmilParser::parse("<smil><root-layout height='50%'/><body><img/></body></smil>", &root, false,
                            nullptr, VySmil::SMIL_VER_DEFAULT);
        const auto shown = [&root](QSize screen, qint32 duration) {
            VySmilSlideShow show;
            show.fromTree(root, {}, {screen, duration});
            return slidesText(show).section(u'\n', 0, 1);
        };
        QCOMPARE(shown(QSize(50, 60), 1), "50x30 size?\nslide 1 time?");
        QCOMPARE(shown(QSize(0, 0), 0), "320x240 size?\nslide 5000 time?");
        QCOMPARE(shown(QSize(-5, 70'000), -1), "320x32768 size?\nslide 5000 time?");
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

    void writesDocuments()
    {
        QList<VySmilPart> parts{
            MessageCase::partOf("|a.jpg||image/jpeg"),  MessageCase::partOf("<s@x>|é||audio/amr|700"),
            MessageCase::partOf("|b.txt||text/plain"),  MessageCase::partOf("<é>|ü||image/gif"),
            MessageCase::partOf("|t.amr||audio/amr|0"), MessageCase::partOf("|u.amr||audio/amr|6000")};
        VySmilSlideShow show = VySmilSlideShow::fromParts(parts);
        show.slides[0].durationMs = 1'000;
        show.slides[0].media[0].beginMs = 300;
        show.slides[1].media[0].src.clear();
        show.slides[1].media[0].rect = QRect(10, 300, 400, 400);
        show.slides[1].media[0].fit = "slice";
        show.slides[1].durationMs = 0;
        show.slides[2].durationMs = show.slides[2].media[0].endMs = 5'000;
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
                                 "par[dur=5000ms](img[region=Image2 src=cid:%C3%A9] audio[src=t.amr]) "
                                 "par[dur=5000ms](audio[src=u.amr])))");
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
        const auto pathBelow = [&](const QString &name) {
            inner->getSubElements()->append(VySmilElemBase::newElem(name));
            inner = inner->getSubElements()->at(0);
            return VySmilConformance::check(root, VySmilConformance::LEVEL_RELAXED).last().path;
        };
        QString path;
        for (int i = 1; i <= 16; ++i)
            QCOMPARE(pathBelow(QString("e%1").arg(i)), path += QString(i > 1 ? "/e%1" : "e%1").arg(i));
        QCOMPARE(pathBelow("e17"), ".../" + path.mid(3) + "/e17");
        QVERIFY(pathBelow(QString(33, 'x')).endsWith("/e17/" + QString(32, 'x') + "..."));
    }
};

QTEST_GUILESS_MAIN(TestMessage)
#include "tst_message.moc"
