// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// The pictures that the program "storyboard" draws of a document alone: geometry, times and colours.

#include "drawn.h"

class TestStoryboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsToScale()
    {
        QDomDocument dom;
        const auto slides = slidesOf(pictureOf(
            dom,
            draw({{"a.smil",
                   "<smil><head><layout><root-layout width='130' height='100'/>"
                   "<region id='A' left='10%' top='20' width='50%' height='40px' fit='meet'/></layout></head>"
                   "<body><par dur='4s'><img src='a&amp;b.jpg' region='A' begin='1s' dur='2000ms'/>"
                   "<text src='t' alt='A caption' region='B' end='00:03'/><audio src='s.amr'/>"
                   "<video region='A' begin='x.end+1s'/></par><par/></body></smil>"}},
                 {"a.smil"})));
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
        QCOMPARE(withClass(slides[0], "guessed"), (QList<QDomElement>{media[1], media[2], bars[3]}));

        for (const char *shown : {"a&b.jpg (meet)", "A caption", "s.amr", "not in the message, times guessed",
                                  "place guessed", "4 s"})
            QVERIFY2(readable(slides[0]).contains(shown), shown);
        QVERIFY(withClass(slides[1], "bar").isEmpty() && slides[1].text().contains("duration guessed"));
    }

    // However many slides there are, and however long their names.
    void nothingLeavesThePicture()
    {
        const QByteArray name = QByteArray("a lo\u0300ng name ").repeated(1'000);
        const QByteArray slide = "<par dur='3h'><img src='" + name + "'/><text alt='" + name +
                                 "'/><audio src='" + name + "'/></par>";
        QDomDocument dom;
        const QDomElement picture =
            pictureOf(dom, draw({}, {}, "<smil><body>" + slide.repeated(40) + "</body></smil>"));
        const auto slides = slidesOf(picture);
        QCOMPARE(slides.size(), qsizetype(40));
        QSet<QString> places;
        for (const QDomElement &drawn : slides) {
            const QString place = drawn.attribute("transform").section(u'(', 1).chopped(1);
            places << place;
            const QDomElement card = withClass(drawn, "card").value(0);
            QVERIFY(place.section(u' ', 0, 0).toDouble() + card.attribute("width").toDouble() <
                    picture.attribute("width").toDouble());
            QVERIFY(place.section(u' ', 1).toDouble() + card.attribute("height").toDouble() <
                    picture.attribute("height").toDouble());
            for (const QDomElement &text : named(drawn, "text"))
                QVERIFY(text.text().size() < 60);
        }
        QCOMPARE(places.size(), 40);
    }

    void takesColours()
    {
        QDomDocument dom;
        const QDomElement picture = pictureOf(
            dom, draw({}, {},
                      "<smil><head><layout><root-layout width='260' height='320' background-color='#102030'/>"
                      "<region id='A' height='50' background-color='navy'/><region id='B' top='100'/>"
                      "<region id='C' top='200' background-color='transparent'/></layout></head><body><par>"
                      "<text alt='1' region='A'/><text alt='2' region='B'><param name='foreground-color' "
                      "value='#FF0000'/></text><text alt='3' region='A'/><text alt='4' region='C'/>"
                      "</par></body></smil>"));
        QStringList grounds;
        for (const QDomElement &ground : withClass(picture, "ground"))
            grounds << ground.attribute("fill");
        QCOMPARE(grounds, (QStringList{"#102030", "#000080"}));
        QStringList inks;
        for (const QDomElement &line : withClass(picture, "caption"))
            inks << line.text() + line.parentNode().toElement().attribute("color");
        QCOMPARE(inks, (QStringList{"1#ffffff", "2#ff0000", "3#ffffff", "4#ffffff"}));
    }

    void refuses_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("cut") << QByteArray("<smil><body>");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\0", 7);
        QTest::newRow("deep") << QByteArray("<smil>").repeated(50'000);
    }
    void refuses()
    {
        QFETCH(QByteArray, document);
        const Said drawn = draw({}, {"-"}, document);
        QVERIFY(drawn.output.isEmpty());
        QCOMPARE(drawn.exitCode, 2);
        QCOMPARE(drawn.errors.count('\n'), 1);

        // What has a root is drawn once it is mended.
        const Said mended = draw({}, {"--mend"}, document);
        QCOMPARE(mended.exitCode, document.startsWith("<smil>") ? 0 : 2);
        QCOMPARE(mended.errors.count('\n'), 1);
        QCOMPARE(faultIn(mended.output).isEmpty(), mended.exitCode == 0);
    }

    // Where a picture goes, and how the program ends.
    void takesOptions_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        const auto row = [](const char *name, const QStringList &arguments, int exitCode) {
            QTest::newRow(name) << arguments << exitCode;
        };
        row("standard input", {}, 0);
        row("a file", {"a.smil"}, 0);
        row("- as output", {"-o", "-", "a.smil"}, 0);
        row("a pipe as output", {"-o", "/dev/stdout", "a.smil"}, 0);
        row("into a file", {"-o", "out/a.svg", "a.smil"}, 0);
        row("parts", {"--parts", "more", "--parts=out", "a.smil"}, 0);
        row("no such folder for it", {"-o", "no/a.svg", "a.smil"}, 2);
        row("a folder as output", {"-o", "out", "a.smil"}, 2);
        row("a second file", {"a.smil", "b\n\x1b.smil"}, 2);
        row("no such file", {"c\n\x1b.smil"}, 2);
        row("a folder without a document", {"out"}, 2);
        row("no such option", {"--no-such\n", "a.smil"}, 2);
    }
    void takesOptions()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        const QByteArray document = "<smil><img src='b.png'/></smil>";
        const QByteArray before = "what was there";
        const QByteArray png("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\2\0\0\0\x90wS\xde", 33);
        const Said drawn =
            draw({{"a.smil", document}, {"out/a.svg", before}, {"more/b.png", png}}, arguments, document);
        QCOMPARE(drawn.exitCode, exitCode);
        QCOMPARE(drawn.errors.count('\n'), exitCode == 0 ? 0 : 1);
        for (const char c : drawn.errors.chopped(drawn.errors.isEmpty() ? 0 : 1))
            QVERIFY(static_cast<uchar>(c) >= ' ');
        QCOMPARE(drawn.output.contains("<use "), arguments.contains("--parts"));
        const bool isInFile = exitCode == 0 && arguments.contains("out/a.svg");
        QCOMPARE(drawn.output.startsWith("<?xml"), exitCode == 0 && !isInFile);
        QCOMPARE(drawn.output.endsWith("in a file: " + before), !isInFile);
        QCOMPARE(drawn.output.startsWith("in a file: <?xml"), isInFile);
    }

    // The picture in the README is what the demonstration draws.
    void readmeShowsThisPicture()
    {
        const Said drawn = draw({}, {SOURCE_DIR "/examples/messages/picnic"});
        QCOMPARE(faultIn(drawn.output), QString());
        QFile picture(SOURCE_DIR "/docs/images/storyboard.svg");
        QVERIFY(picture.open(QIODevice::ReadOnly));
        QCOMPARE(drawn.output, picture.readAll());
    }
};

QTEST_GUILESS_MAIN(TestStoryboard)
#include "tst_storyboard.moc"
