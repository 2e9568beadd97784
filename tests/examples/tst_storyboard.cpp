// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// The pictures that the example "storyboard" draws: geometry and times, read from the SVG.

#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

QList<QDomElement> withClass(const QDomElement &elem, const QString &name)
{
    QList<QDomElement> found;
    for (QDomElement child = elem.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (child.attribute("class").split(u' ').contains(name))
            found << child;
        found += withClass(child, name);
    }
    return found;
}

QList<double> numbers(const QDomElement &elem, const QStringList &names)
{
    QList<double> values;
    for (const QString &name : names)
        values << elem.attribute(name).toDouble();
    return values;
}

QByteArray draw(const QByteArray &document, int &exitCode)
{
    QTemporaryDir dir;
    QFile file(dir.filePath("message.smil"));
    if (file.open(QIODevice::WriteOnly))
        file.write(document);
    file.close();
    QProcess process;
    process.start(PROGRAM, {file.fileName()});
    process.waitForFinished();
    exitCode = process.exitCode();
    return process.readAllStandardOutput();
}

/// The group of each slide of a picture.
QList<QDomElement> slidesOf(QDomDocument &dom, const QByteArray &svg)
{
    QList<QDomElement> slides;
    if (!dom.setContent(svg))
        return slides;
    const QDomElement root = dom.documentElement();
    for (QDomElement g = root.firstChildElement("g"); !g.isNull(); g = g.nextSiblingElement("g"))
        slides << g;
    return slides;
}

} // namespace

class TestStoryboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsToScale()
    {
        int exitCode = -1;
        QDomDocument dom;
        const auto slides = slidesOf(
            dom, draw("<smil><head><layout><root-layout width='130' height='100'/>"
                      "<region id='A' left='10%' top='20' width='50%' height='40px' fit='meet'/><region "
                      "id='B'/></layout></head>"
                      "<body><par dur='4s'><img src='a&amp;b.jpg' region='A' begin='1s' dur='2000ms'/>"
                      "<text src='t' region='B' end='00:03'/><audio src='s.amr'/><video src='v' "
                      "region='nowhere' begin='x.end+1s'/>"
                      "</par><par/></body></smil>",
                      exitCode));
        QCOMPARE(exitCode, 0);
        QCOMPARE(slides.size(), qsizetype(2));
        QCOMPARE(slides[1].attribute("transform"), QString("translate(300 0)"));

        // The screen is drawn twice as large as it is.
        QCOMPARE(numbers(withClass(slides[0], "screen").value(0), {"width", "height"}),
                 (QList<double>{260, 200}));
        const auto regions = withClass(slides[0], "region");
        QCOMPARE(regions.size(), qsizetype(3));
        const QStringList box{"x", "y", "width", "height"};
        QCOMPARE(numbers(regions[0], box), (QList<double>{26, 40, 130, 80}));
        QCOMPARE(numbers(regions[1], box), (QList<double>{0, 0, 260, 200}));
        const auto guessed = withClass(slides[0], "guessed");
        QCOMPARE(guessed, (QList<QDomElement>{regions[1], regions[2]}));
        QVERIFY(slides[0].text().contains("A [meet]") && slides[0].text().contains("img: a&b.jpg"));
        QCOMPARE(withClass(slides[0], "badge").size(), qsizetype(1));
        QVERIFY(withClass(slides[0], "audio").value(0).text().contains("s.amr"));

        // One second is 65 wide; the video begins at a time that nobody knows, and has no bar.
        const auto bars = withClass(slides[0], "bar");
        QCOMPARE(bars.size(), qsizetype(3));
        QCOMPARE(numbers(bars[0], {"x", "width"}), (QList<double>{65, 130}));
        QCOMPARE(numbers(bars[1], {"x", "width"}), (QList<double>{0, 195}));
        QCOMPARE(numbers(bars[2], {"x", "width"}), (QList<double>{0, 260}));
        QVERIFY(slides[0].text().contains("begin=x.end+1s"));
        QVERIFY(withClass(slides[1], "bar").isEmpty() && slides[1].text().contains("(no duration)"));
    }

    void guessesAreMarked()
    {
        int exitCode = -1;
        QDomDocument dom;
        const auto slides =
            slidesOf(dom, draw("<smil><body><par><img src='a'/></par></body></smil>", exitCode));
        QCOMPARE(slides.size(), qsizetype(1));
        QCOMPARE(withClass(slides[0], "guessed").size(), qsizetype(2));
        QVERIFY(slides[0].text().contains("size of the display not given"));
        QVERIFY(slides[0].text().contains("(no region)"));
    }

    void badInputIsRefused()
    {
        int exitCode = -1;
        QVERIFY(draw("<smil><body>", exitCode).isEmpty());
        QCOMPARE(exitCode, 1);
    }

    // The picture in the README is what the demonstration draws.
    void readmeShowsThisPicture()
    {
        QFile message(SOURCE_DIR "/examples/messages/phone.smil");
        QFile picture(SOURCE_DIR "/docs/images/storyboard.svg");
        QVERIFY(message.open(QIODevice::ReadOnly) && picture.open(QIODevice::ReadOnly));
        int exitCode = -1;
        QDomDocument drawn;
        QDomDocument shown;
        const auto drawnSlides = slidesOf(drawn, draw(message.readAll(), exitCode));
        const auto shownSlides = slidesOf(shown, picture.readAll());
        QCOMPARE(drawnSlides.size(), qsizetype(2));
        QCOMPARE(shownSlides.size(), drawnSlides.size());
        for (qsizetype i = 0; i < drawnSlides.size(); ++i) {
            QCOMPARE(drawnSlides[i].text(), shownSlides[i].text());
            const auto drawnBars = withClass(drawnSlides[i], "bar");
            const auto shownBars = withClass(shownSlides[i], "bar");
            QCOMPARE(drawnBars.size(), shownBars.size());
            for (qsizetype bar = 0; bar < drawnBars.size(); ++bar)
                QCOMPARE(numbers(drawnBars[bar], {"x", "width"}), numbers(shownBars[bar], {"x", "width"}));
        }
    }
};

QTEST_GUILESS_MAIN(TestStoryboard)
#include "tst_storyboard.moc"
