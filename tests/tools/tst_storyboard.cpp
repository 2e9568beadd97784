// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// The pictures that the program "storyboard" draws: geometry and times, read from the SVG.

#include <QDir>
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
            dom,
            draw("<smil><head><layout><root-layout width='130' height='100'/>"
                 "<region id='A' left='10%' top='20' width='50%' height='40px' fit='meet'/></layout></head>"
                 "<body><par dur='4s'><img src='a&amp;b.jpg' region='A' begin='1s' dur='2000ms'/>"
                 "<text src='t' alt='A caption' region='B' end='00:03'/><audio src='s.amr'/>"
                 "<video region='A' begin='x.end+1s'/></par><par/></body></smil>",
                 exitCode));
        QCOMPARE(exitCode, 0);
        QCOMPARE(slides.size(), qsizetype(2));

        // The screen is drawn twice as large as it is.
        QCOMPARE(numbers(withClass(slides[0], "screen").value(0), {"width", "height"}),
                 (QList<double>{260, 200}));
        const auto media = withClass(slides[0], "medium");
        QCOMPARE(media.size(), qsizetype(3));
        QCOMPARE(numbers(media[0], {"width", "height"}), (QList<double>{130, 80}));
        QCOMPARE(media[0].parentNode().toElement().attribute("transform"), QString("translate(26 40)"));
        QCOMPARE(numbers(media[1], {"width", "height"}), (QList<double>{260, 40}));

        // One second is 65 wide.
        const auto bars = withClass(slides[0], "bar");
        QCOMPARE(bars.size(), qsizetype(4));
        QCOMPARE(numbers(bars[0], {"x", "width"}), (QList<double>{65, 130}));
        QCOMPARE(numbers(bars[1], {"x", "width"}), (QList<double>{0, 195}));
        QCOMPARE(numbers(bars[2], {"x", "width"}), (QList<double>{0, 260}));
        QCOMPARE(withClass(slides[0], "guessed"), (QList<QDomElement>{media[1], bars[3]}));

        const QString text = slides[0].text().remove(QChar(0x2068)).remove(QChar(0x2069));
        for (const char *shown : {"a&b.jpg (meet)", "A caption", "s.amr", "not in the message, times guessed",
                                  "place guessed", "4 s"})
            QVERIFY2(text.contains(shown), shown);
        QVERIFY(withClass(slides[1], "bar").isEmpty() && slides[1].text().contains("duration guessed"));
    }

    // However many slides there are, and however long their names.
    void nothingLeavesThePicture()
    {
        const QByteArray name = QByteArray("a long name ").repeated(50);
        const QByteArray slide = "<par dur='3h'><img src='" + name + "'/><text alt='" + name +
                                 "'/><audio src='" + name + "'/></par>";
        int exitCode = -1;
        QDomDocument dom;
        const auto slides =
            slidesOf(dom, draw("<smil><body>" + slide.repeated(40) + "</body></smil>", exitCode));
        QCOMPARE(slides.size(), qsizetype(40));
        const QDomElement picture = dom.documentElement();
        QSet<QString> places;
        for (const QDomElement &drawn : slides) {
            const QString place = drawn.attribute("transform").section(u'(', 1).chopped(1);
            places << place;
            const QDomElement card = withClass(drawn, "card").value(0);
            QVERIFY(place.section(u' ', 0, 0).toDouble() + card.attribute("width").toDouble() <
                    picture.attribute("width").toDouble());
            QVERIFY(place.section(u' ', 1).toDouble() + card.attribute("height").toDouble() <
                    picture.attribute("height").toDouble());
            for (const QDomElement &text : withClass(drawn, "label"))
                QVERIFY(text.text().size() < 50);
        }
        QCOMPARE(places.size(), 40);
    }

    void badInputIsRefused()
    {
        int exitCode = -1;
        for (const QByteArray &document :
             {QByteArray("<smil><body>"), QByteArray(), QByteArray("\x89PNG\r\n\0", 7),
              QByteArray("<smil>").repeated(50'000)}) {
            QVERIFY(draw(document, exitCode).isEmpty());
            QCOMPARE(exitCode, 2);
        }
        QCOMPARE(QProcess::execute(PROGRAM, {QDir::tempPath()}), 2);
    }

    void writesAFile()
    {
        QTemporaryDir dir;
        QFile message(dir.filePath("a.smil"));
        QVERIFY(message.open(QIODevice::WriteOnly) && message.write("<smil/>") > 0);
        message.close();
        int exitCode = -1;
        const QString drawn = dir.filePath("a.svg");
        QCOMPARE(QProcess::execute(PROGRAM, {"-o", drawn, message.fileName()}), 0);
        QFile picture(drawn);
        QVERIFY(picture.open(QIODevice::ReadOnly));
        QCOMPARE(picture.readAll(), draw("<smil/>", exitCode));
        QCOMPARE(QProcess::execute(PROGRAM, {"-o", dir.filePath("no/a.svg"), message.fileName()}), 2);
    }

    // The picture in the README is what the demonstration draws.
    void readmeShowsThisPicture()
    {
        QFile message(SOURCE_DIR "/examples/messages/phone.smil");
        QFile picture(SOURCE_DIR "/docs/images/storyboard.svg");
        QVERIFY(message.open(QIODevice::ReadOnly) && picture.open(QIODevice::ReadOnly));
        int exitCode = -1;
        QCOMPARE(draw(message.readAll(), exitCode), picture.readAll());
    }
};

QTEST_GUILESS_MAIN(TestStoryboard)
#include "tst_storyboard.moc"
