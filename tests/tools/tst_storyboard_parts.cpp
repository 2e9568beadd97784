// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// The pictures that the program "storyboard" draws of a message with its parts, whatever these hold.

#include "drawn.h"

#include <QBuffer>
#include <QImage>

namespace {

QByteArray encoded(const QSize &size, const char *format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

// A photograph whose camera was held another way (EXIF, tag 274).
QByteArray turned(char orientation)
{
    const QByteArray exif = QByteArray("\xff\xe1\0\x22"
                                       "Exif\0\0MM\0*\0\0\0\x08\0\1\x01\x12\0\3\0\0\0\1\0",
                                       29) +
                            orientation + QByteArray(6, '\0');
    return encoded({60, 20}, "jpeg").insert(2, exif.left(36));
}

QByteArray webp(const char *chunk, const QByteArray &header)
{
    return QByteArray("RIFF\x40\0\0\0WEBP", 12) + chunk + QByteArray("\x20\0\0\0", 4) + header +
           QByteArray(16, '\0');
}

} // namespace

class TestStoryboardParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A picture as a part: where and how large it is drawn on a screen that is drawn twice as large as it is;
    // nowhere if it stays an icon.
    void paintsPictures_data()
    {
        QTest::addColumn<QByteArray>("region");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QList<double>>("place");
        const QByteArray wide = encoded({60, 20}, "png");
        const QByteArray all = "left='10' top='20' width='30' height='40' fit=";
        const auto fit = [&](const char *name, const QList<double> &place) {
            QTest::newRow(name) << all + "'" + name + "'" << wide << place;
        };
        fit("meet", {0, 0, 60, 20});
        fit("fill", {0, 0, 60, 80});
        fit("slice", {0, 0, 240, 80});
        fit("hidden", {0, 0, 120, 40});
        fit("scroll", {0, 0, 120, 40});
        fit("", {0, 0, 60, 20});
        QTest::newRow("cut by the screen")
            << QByteArray("left='100' top='80' width='60' height='60' fit='slice'") << wide
            << QList<double>{0, 0, 360, 120};
        const auto content = [&](const char *name, const QByteArray &bytes, const QList<double> &place) {
            QTest::newRow(name) << all + "'hidden'" << bytes << place;
        };
        content("JPEG", encoded({60, 20}, "jpeg"), {0, 0, 120, 40});
        content("JPEG that lies on its side", turned(6), {0, 0, 40, 120});
        content("JPEG upside down", turned(3), {0, 0, 120, 40});
        content("BMP", encoded({60, 20}, "bmp"), {0, 0, 120, 40});
        content("GIF", QByteArray("GIF89a\x3c\0\x14\0\0\0\0,\0\0\0\0\x3c\0\x14\0\0\x02\x02\x44\x01\0;", 30),
                {0, 0, 120, 40});
        content("WebP, lossy", webp("VP8 ", QByteArray("\0\0\0\x9d\x01*\x3c\0\x14\0", 10)), {0, 0, 120, 40});
        content("WebP, lossless", webp("VP8L", QByteArray("\x2f\x3b\xc0\x04\0", 5)), {0, 0, 120, 40});
        content("WebP, extended", webp("VP8X", QByteArray("\0\0\0\0\x3b\0\0\x13\0\0", 10)), {0, 0, 120, 40});
        content("2 MiB", wide + QByteArray((2 << 20) - wide.size(), '\0'), {0, 0, 120, 40});
        content("more than 2 MiB", wide + QByteArray((2 << 20) - wide.size() + 1, '\0'), {});
        content("more pixels than a screen is worth",
                QByteArray(wide).replace(16, 8, QByteArray("\0\0\xf0\0\0\0\xf0\0", 8)), {});
        content("cut in its header", wide.left(20), {});
        content("JPEG, cut", encoded({60, 20}, "jpeg").left(150), {});
        content("WebP, cut", webp("VP8X", QByteArray()).left(29), {});
        content("empty", QByteArray(), {});
        content("SVG", "<svg xmlns='http://www.w3.org/2000/svg'><script>alert(1)</script></svg>", {});
        content("HTML", "<html><img src='http://example.org/a.png' onload='alert(1)'/></html>", {});
        content("TIFF", QByteArray("II*\0\x08\0\0\0\0\0\0\0", 12), {});
    }
    void paintsPictures()
    {
        QFETCH(QByteArray, region);
        QFETCH(QByteArray, content);
        QFETCH(QList<double>, place);
        const QByteArray document =
            "<smil><head><layout><root-layout width='130' height='100'/><region id='R' " + region +
            "/></layout></head><body><img src='a.png' region='R'/></body></smil>";
        Said drawn = draw({{"a.smil", document}, {"a.png", content}});
        if (content.size() > 2 << 20)
            QCOMPARE(std::exchange(drawn.errors, {}).count("/a.png: too large to be drawn"), 1);
        QDomDocument dom;
        const QDomElement picture = pictureOf(dom, drawn);
        const auto uses = named(picture, "use");
        QCOMPARE(uses.size(), place.isEmpty() ? 0 : 1);
        QCOMPARE(withClass(picture, "icon").size(), place.isEmpty() ? 3 : 1);
        if (place.isEmpty())
            return;
        QCOMPARE(numbers(uses[0], {"x", "y", "width", "height"}), place);
        const QByteArray data = named(picture, "image").value(0).attribute("xlink:href").toLatin1();
        QCOMPARE(QByteArray::fromBase64(data.mid(data.indexOf(',') + 1)), content);
        // What is seen of it, and that nothing else is.
        const QDomElement medium = withClass(picture, "medium").value(0);
        QCOMPARE(numbers(named(picture, "clipPath").value(0).firstChildElement(), {"width", "height"}),
                 numbers(medium, {"width", "height"}));
    }

    // However often a picture is shown it is held once; all together have 16 MiB.
    void holdsPicturesOnce()
    {
        QByteArray body;
        Files files;
        for (int i = 0; i < 20; ++i) {
            const QByteArray name = QByteArray::number(i % 10);
            QByteArray content = encoded({4 + i, 3}, "png");
            content.resize(2 << 20, '\0');
            files.insert(name, content);
            body += "<par><img src='" + name + "'/></par>";
        }
        files.insert("a.smil", "<smil><body>" + body + "</body></smil>");
        const Said drawn = draw(files);
        QCOMPARE(drawn.exitCode, 0);
        QCOMPARE(drawn.output.count("<image "), 8);
        QCOMPARE(drawn.output.count("<use "), 16);
        QCOMPARE(drawn.errors.count(": too large to be drawn: an icon stands for it\n"), 2);
    }

    // A text as a part: its lines, and which of them run from right to left.
    void writesTexts_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("directions");
        const auto row = [](const char *name, const QByteArray &content, const QStringList &lines,
                            const char *directions) {
            QTest::newRow(name) << content << lines << directions;
        };
        row("one line", "Hello & <b>welcome</b>", {"Hello & <b>welcome</b>"}, "l");
        row("lines", "a\r\nb\rc\n", {"a", "b", "c", ""}, "llll");
        row("UTF-16", QByteArray("\xff\xfe\x61\0\xac\x20", 6), {QString("a\u20ac")}, "l");
        row("Windows-1252", "caf\xe9!", {QString("caf\u00e9!")}, "l");
        row("Hebrew, then English", "(\u05e9\u05dc\u05d5\u05dd)\nHello",
            {QString("(\u05e9\u05dc\u05d5\u05dd)"), "Hello"}, "rl");
        row("wrapped between words", "the quick brown fox jumps over the lazy dog and runs",
            {"the quick brown fox jumps over the ", "lazy dog and runs"}, "ll");
        row("no words", QByteArray("m").repeated(30), {QString("m").repeated(21), QString("m").repeated(9)},
            "ll");
        row("controls", "a\x1b[1mb\u202e c\x07\td", {"a[1mb c d"}, "l");
        row("half a pair", "a\xed\xa0\x80", {QString("a\u00ed\u00a0\u20ac")}, "l");
        row("only blanks", " \n ", {"its alt"}, "l");
        row("binary", QByteArray("a\0b", 3), {"its alt"}, "l");
        row("a picture", encoded({3, 3}, "png"), {}, "");
    }
    void writesTexts()
    {
        QFETCH(QByteArray, content);
        QFETCH(QStringList, lines);
        QFETCH(QString, directions);
        QDomDocument dom;
        const QDomElement picture = pictureOf(
            dom,
            draw({{"a.smil", "<smil><head><layout><root-layout width='260' height='100'/></layout></head>"
                             "<body><text src='a.txt' alt='its alt'/></body></smil>"},
                  {"a.txt", content}}));
        QStringList shown;
        QString ways;
        for (const QDomElement &line : withClass(picture, "caption")) {
            shown << line.text();
            ways += line.attribute("direction").at(0);
            QCOMPARE(line.attribute("x").toDouble(), ways.endsWith('r') ? 256.0 : 4.0);
        }
        QCOMPARE(shown, lines);
        QCOMPARE(ways, directions);
    }

    // What is longer than its place ends in "…", however long it is.
    void cutsTexts()
    {
        for (const QByteArray &text :
             {QByteArray("word ").repeated(100'000), QByteArray("w").repeated(500'000),
              QByteArray("a\n").repeated(250'000), QByteArray("o\u0300").repeated(100'000)}) {
            QDomDocument dom;
            const auto lines = withClass(
                pictureOf(dom, draw({{"a.smil", "<smil><text src='a.txt'/></smil>"}, {"a.txt", text}})),
                "caption");
            QVERIFY(!lines.isEmpty() && lines.size() <= 20);
            QVERIFY(lines.last().text().endsWith(QChar(0x2026)));
        }
    }

    // Parts that are missing, and those that are left over, whatever they are called.
    void marksParts()
    {
        Files files{
            {"a.smil",
             "<smil><body><par><img src='gone&quot;&gt;.png'/><text src='b.txt'/></par></body></smil>"},
            {"b.txt", "here"},
            {"huge.png", encoded({3, 3}, "png")},
            {"x\"><script>alert(1)<!--.txt", "1"},
            {"y\n\x1b[1m\u202e&lt;.html", "<script>alert(1)</script>"}};
        for (int i = 0; i < 30; ++i)
            files.insert(QString("z%1").arg(i, 2, 10, QChar('0')), "");
        QDomDocument dom;
        const QDomElement picture = pictureOf(dom, draw(files));
        QCOMPARE(readable(picture).count("not in the message"), 1);
        QCOMPARE(withClass(picture, "guessed").size(), 3);
        const QString shown = readable(picture).section("on no slide:", 1);
        QCOMPARE(shown, QString("huge.pngx\"><script>alert(1)<!--.txty\\n\\x1b[1m\\u202e&lt;.html"
                                "z00z01z02z03z04z05z06z07z08and 21 more"));
    }
};

QTEST_GUILESS_MAIN(TestStoryboardParts)
#include "tst_storyboard_parts.moc"
