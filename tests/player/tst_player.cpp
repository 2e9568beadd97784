// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "message.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

// One colour each, and sizes that no region here has.
const QHash<QString, QPair<QSize, QColor>> pictures = {
    {QStringLiteral("wide.png"), {QSize(200, 50), QColor(200, 0, 0)}},
    {QStringLiteral("tall.png"), {QSize(40, 210), QColor(0, 160, 0)}},
    {QStringLiteral("small.png"), {QSize(30, 30), QColor(0, 0, 210)}},
    {QStringLiteral("large.png"), {QSize(500, 490), QColor(190, 0, 190)}},
};

void write(const QTemporaryDir &folder, const QString &name, const QByteArray &content)
{
    QFile file(folder.filePath(name));
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(name));
    QCOMPARE(file.write(content), content.size());
}

void paint(const QTemporaryDir &folder, const QString &name, const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QVERIFY(image.save(folder.filePath(name), "PNG"));
}

// A folder with the pictures, a text that shows nothing, and \a document as its SMIL.
void fill(const QTemporaryDir &folder, const QString &document)
{
    for (auto picture = pictures.cbegin(); picture != pictures.cend(); ++picture)
        paint(folder, picture.key(), picture->first, picture->second);
    write(folder, QStringLiteral("blank.txt"), " ");
    write(folder, QStringLiteral("message.smil"), document.toUtf8());
}

// The player with a message, paused.
struct Player
{
    Message message;
    QQmlApplicationEngine engine;
    QQuickWindow *window = nullptr;
    bool isShown = false;

    explicit Player(const QString &path) : message(path)
    {
        engine.addImageProvider(QStringLiteral("parts"), new Pictures(message));
        engine.setInitialProperties(
            {{QStringLiteral("message"), QVariant::fromValue(&message)}, {QStringLiteral("playing"), false}});
        engine.load(QUrl::fromLocalFile(QStringLiteral(PLAYER "/Player.qml")));
        window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
        isShown = window && QTest::qWaitForWindowExposed(window);
    }

    [[nodiscard]] QQuickItem *find(const char *name) const
    {
        return window->findChild<QQuickItem *>(QString::fromLatin1(name));
    }
    [[nodiscard]] double position() const
    {
        const int slide = window->property("current").toInt();
        double start = 0;
        for (int i = 0; i < slide; ++i)
            start += message.property("slideShow").value<VySmilSlideShow>().slides[i].durationMs;
        return start + window->property("ms").toDouble();
    }
    void seek(qint64 ms) const { QMetaObject::invokeMethod(window, "seek", Q_ARG(QVariant, QVariant(ms))); }
    // All items of a QML type that are there.
    [[nodiscard]] QList<QQuickItem *> all(const char *type) const
    {
        QList<QQuickItem *> found;
        QList<QQuickItem *> open = {window->contentItem()};
        while (!open.isEmpty()) {
            QQuickItem *item = open.takeLast();
            open << item->childItems();
            if (item->inherits(type))
                found << item;
        }
        return found;
    }
    [[nodiscard]] bool shows(const QString &text) const
    {
        const QList<QQuickItem *> texts = all("QQuickText");
        return std::any_of(texts.cbegin(), texts.cend(), [&](const QQuickItem *item) {
            return item->isVisible() && item->property("text").toString() == text;
        });
    }
    [[nodiscard]] bool isLoading() const
    {
        const QList<QQuickItem *> images = all("QQuickImage");
        return std::any_of(images.cbegin(), images.cend(),
                           [](const QQuickItem *item) { return item->property("status").toInt() == 2; });
    }
    // What is on the stage, once the pictures are there.
    [[nodiscard]] QImage frame() const
    {
        if (!QTest::qWaitFor([this] { return !isLoading(); }))
            return {};
        const QQuickItem *stage = find("stage");
        const QRectF place = stage->mapRectToScene(QRectF(0, 0, stage->width(), stage->height()));
        return window->grabWindow().copy(place.toAlignedRect());
    }
};

// What is to be seen at a point of the root layout; nothing where it is too near to an edge to tell.
std::optional<QColor> expectedAt(const VySmilSlideShow &show, const VySmilSlide &slide, qint32 ms,
                                 const QPointF &point, double blur)
{
    const auto isNearEdge = [&](const QRectF &rect) {
        return rect.adjusted(-blur, -blur, blur, blur).contains(point) &&
               !rect.adjusted(blur, blur, -blur, -blur).contains(point);
    };
    QColor color = show.background.isValid() ? show.background : QColor(Qt::white);
    for (const int index : slide.mediaAt(ms)) {
        const VySmilMedium &medium = slide.media[index];
        const auto picture = pictures.value(medium.src);
        const QRectF shown(medium.area.topLeft(), medium.shownSize(picture.first));
        if (isNearEdge(medium.rect) || isNearEdge(shown))
            return std::nullopt;
        if (!QRectF(medium.rect).contains(point))
            continue;
        if (medium.background.isValid())
            color = medium.background;
        if (shown.contains(point))
            color = picture.second;
    }
    return color;
}

// Compares what is seen on a grid of points at \a ms of a slide with what the library says is there.
void compareFrame(const Player &player, const VySmilSlideShow &show, int slide, qint32 ms,
                  QSet<QRgb> &seenColors)
{
    const QImage frame = player.frame();
    QVERIFY(!frame.isNull());
    const double zoom = player.find("stage")->width() / show.size.width();
    int compared = 0;
    for (int y = 3; y < frame.height(); y += 11) {
        for (int x = 3; x < frame.width(); x += 11) {
            const QPointF point((x + 0.5) / zoom, (y + 0.5) / zoom);
            const auto expected = expectedAt(show, show.slides[slide], ms, point, 2 / zoom);
            if (!expected)
                continue;
            ++compared;
            seenColors << expected->rgb();
            const QString where = QStringLiteral("slide %1 at %2 ms, point %3, %4: %5 in place of %6")
                                      .arg(slide)
                                      .arg(ms)
                                      .arg(point.x())
                                      .arg(point.y())
                                      .arg(frame.pixelColor(x, y).name(), expected->name());
            QVERIFY2(frame.pixel(x, y) == expected->rgb(), qPrintable(where));
        }
    }
    QVERIFY2(compared > 100, "too few points that tell");
}

} // namespace

class TestPlayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Message::registerTypes(); }
    // A file that is no picture is said to be none; no other warning belongs to any message.
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!.*Failed to get image from provider)")));
    }
    void shows_data();
    void shows();
    void captions_data();
    void captions();
    void strangers_data();
    void strangers();
    void staysInFolder_data();
    void staysInFolder();
    void noMessage_data();
    void noMessage();
    void plays();
    void keysAndBar();
};

void TestPlayer::shows_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("body");
    QTest::addColumn<int>("colors"); // that are seen at some time
    const auto row = [](const char *name, const char *layout, const char *body, int colors) {
        QTest::newRow(name) << QString::fromLatin1(layout) << QString::fromLatin1(body) << colors;
    };
    row("one after the other", R"(<root-layout width="320" height="240" background-color="#202020"/>)",
        R"(<par dur="4s"><img src="wide.png" end="2s"/><img src="tall.png" begin="1s" dur="2s"/>
           <img src="small.png" begin="3500ms"/></par>)",
        4);
    row("one above the other",
        R"(<root-layout width="200" height="300"/><region id="a" left="20" top="30" width="100" height="100"/>
           <region id="b" left="50%" top="10%" width="30%" height="50%" background-color="#ffff00"/>)",
        R"(<par dur="3s"><img src="large.png" region="a"/><img src="tall.png" region="b" begin="1s"/>
           <img src="wide.png" region="a" begin="2s"/></par>)",
        5);
    row("cut at the edges",
        R"(<root-layout width="240" height="240"/>
           <region id="a" left="-6%" top="-6%" width="120" height="120" fit="hidden"/>
           <region id="b" left="180" top="150" width="120" height="150" fit="slice"/>)",
        R"(<par dur="1s"><img src="small.png" region="a"/><img src="wide.png" region="b"/></par>)", 3);
    row("fits",
        R"(<root-layout width="300" height="400" background-color="black"/>
           <region id="fill" width="100" height="100" fit="fill"/>
           <region id="meet" left="100" width="100" height="100" fit="meet"/>
           <region id="slice" left="200" width="100" height="100" fit="slice"/>
           <region id="hidden" top="200" width="100" height="100" fit="hidden"/>
           <region id="scroll" top="200" left="100" width="100" height="100" fit="scroll"/>
           <region id="odd" top="200" left="200" width="100" height="100" fit="odd"/>)",
        R"(<par dur="1s"><img src="wide.png" region="fill"/><img src="tall.png" region="meet"/>
           <img src="wide.png" region="slice"/><img src="tall.png" region="hidden"/>
           <img src="large.png" region="scroll"/><img src="small.png" region="odd"/></par>)",
        5);
    row("slides", R"(<root-layout width="176" height="208"/>)",
        R"(<par dur="2s"><img src="wide.png"/></par><par dur="300ms"/><par><img src="large.png"/></par>
           <img src="small.png" dur="700ms"/>)",
        4);
    row("text with a picture",
        R"(<root-layout width="320" height="480"/><region id="Image" height="50%"/>
           <region id="Text" top="50%" background-color="#00ffff"/>)",
        R"(<par dur="2s"><img src="wide.png" region="Image"/><text src="blank.txt" region="Text" begin="1s"/>
           <audio src="none.mp3"/></par>)",
        3);
    row("no layout", "", R"(<par><img src="tall.png"/><text src="blank.txt"/></par>)", 2);
    row("far larger than a phone", R"(<root-layout width="5000" height="3000"/>
                                      <region id="a" left="50%" fit="fill"/>)",
        R"(<par><img src="small.png" region="a"/></par>)", 2);
}

void TestPlayer::shows()
{
    QFETCH(QString, layout);
    QFETCH(QString, body);
    QFETCH(int, colors);
    QTemporaryDir folder;
    fill(folder,
         QStringLiteral("<smil><head><layout>%1</layout></head><body>%2</body></smil>").arg(layout, body));
    const Player player(folder.path());
    QVERIFY(player.isShown);
    const auto show = player.message.property("slideShow").value<VySmilSlideShow>();
    QVERIFY(!show.slides.isEmpty());
    QSet<QRgb> seenColors;
    qint64 start = 0;
    for (int slide = 0; slide < show.slides.size(); ++slide) {
        const qint32 duration = show.slides[slide].durationMs;
        for (const qint32 instant : show.slides[slide].instants()) {
            for (const qint32 ms : {instant - 1, instant}) {
                if (ms < 0 || ms >= duration)
                    continue;
                player.seek(start + ms);
                QCOMPARE(player.window->property("current").toInt(), slide);
                compareFrame(player, show, slide, ms, seenColors);
                if (QTest::currentTestFailed())
                    return;
            }
        }
        start += duration;
    }
    QCOMPARE(seenColors.size(), colors);
}

void TestPlayer::captions_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("region");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("ink");
    const QString none;
    const QString black = QStringLiteral("black");
    const QString white = QStringLiteral("white");
    const QColor dark(0x26, 0x32, 0x38);
    QTest::newRow("nothing said") << none << none << none << dark;
    QTest::newRow("dark slide") << black << none << none << QColor(Qt::white);
    QTest::newRow("light region of a dark slide") << black << white << none << dark;
    QTest::newRow("dark region") << none << black << none << QColor(Qt::white);
    QTest::newRow("a dark slide seen through")
        << black << QStringLiteral("transparent") << none << QColor(Qt::white);
    QTest::newRow("said") << black << none << QStringLiteral("red") << QColor(Qt::red);
}

// A caption can be told from what is behind it, unless its sender wanted otherwise.
void TestPlayer::captions()
{
    QFETCH(QString, root);
    QFETCH(QString, region);
    QFETCH(QString, text);
    QFETCH(QColor, ink);
    QTemporaryDir folder;
    fill(folder,
         QStringLiteral("<smil><head><layout><root-layout background-color=\"%1\"/><region id=\"Text\" "
                        "background-color=\"%2\"/></layout></head><body><par><text src=\"a.txt\">"
                        "<param name=\"foreground-color\" value=\"%3\"/></text></par></body></smil>")
             .arg(root, region, text));
    write(folder, QStringLiteral("a.txt"), "a caption");
    const Player player(folder.path());
    QVERIFY(player.isShown);
    for (const QQuickItem *item : player.all("QQuickText")) {
        if (item->property("text").toString() == QStringLiteral("a caption"))
            QCOMPARE(item->property("color").value<QColor>().name(), ink.name());
    }
    QVERIFY(player.shows(QStringLiteral("a caption")));
}

void TestPlayer::strangers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("plain"); // how it is shown in one line
    const auto row = [](const char *name, const QString &text, const QString &plain = {}) {
        QTest::newRow(name) << text << (plain.isEmpty() ? text : plain);
    };
    row("markup", QStringLiteral("<b>x<"));
    row("markup with an address", QStringLiteral("<img src='http:x.example'><br>x"));
    row("lines", QStringLiteral("a\nb\u2028c.jpg"), QStringLiteral("a\uFFFDb\uFFFDc.jpg"));
    row("controls", QStringLiteral("a\u0085\u202egpj.exe"), QStringLiteral("a\uFFFD\uFFFDgpj.exe"));
    row("beyond 16 bits", QStringLiteral("\U0001F408 \u732b"));
}

// Texts and names of others are shown as they are, wherever they stand: as a caption, in place of what is
// missing, as the name of a file and in a note.
void TestPlayer::strangers()
{
    QFETCH(QString, text);
    QFETCH(QString, plain);
    QTemporaryDir folder;
    const QString escaped = text.toHtmlEscaped().replace(u'\n', QStringLiteral("&#10;"));
    write(folder, QStringLiteral("message.smil"),
          QStringLiteral("<smil><body><par><text src=\"caption.txt\"/></par>"
                         "<par><img src=\"gone %1\" alt=\"%1\"/></par></body></smil>")
              .arg(escaped)
              .toUtf8());
    write(folder, QStringLiteral("caption.txt"), text.toUtf8());
    write(folder, QStringLiteral("below ") + text, "?");
    const Player player(folder.path());
    QVERIFY(player.isShown);
    QVERIFY(player.shows(text));
    QVERIFY(player.shows(QStringLiteral("below ") + plain));
    player.seek(5000);
    QVERIFY(player.shows(plain));
    const QList<QQuickItem *> texts = player.all("QQuickText");
    QVERIFY(std::any_of(texts.cbegin(), texts.cend(), [](const QQuickItem *item) {
        return item->property("text").toString().contains(QStringLiteral("names no part"));
    }));
    for (const QQuickItem *item : texts) {
        QCOMPARE(item->property("textFormat").toInt(), int(Qt::PlainText));
        const QList<uint> characters = item->property("text").toString().toUcs4();
        for (const uint character : characters)
            QVERIFY(QChar::isPrint(character) && (character & ~1U) != 0x2028);
    }
    QVERIFY(player.all("QQuickTextEdit").isEmpty());
}

void TestPlayer::staysInFolder_data()
{
    QTest::addColumn<QString>("src"); // %1 is the folder outside
    QTest::newRow("a folder up") << QStringLiteral("../outside/picture.png");
    QTest::newRow("path") << QStringLiteral("%1/picture.png");
    QTest::newRow("address of a file") << QStringLiteral("file://%1/picture.png");
    QTest::newRow("link") << QStringLiteral("link.png");
    QTest::newRow("link to the folder") << QStringLiteral("outside/picture.png");
    QTest::newRow("address of the program") << QStringLiteral("image://parts/-1");
    QTest::newRow("drawing that names a file") << QStringLiteral("drawing.png");
    QTest::newRow("text called a picture") << QStringLiteral("text.png");
}

// A medium that is no picture of the message is shown by its name, and nothing is read in its place.
void TestPlayer::staysInFolder()
{
    QFETCH(QString, src);
    QTemporaryDir both;
    QVERIFY(QDir(both.path()).mkdir(QStringLiteral("outside")) &&
            QDir(both.path()).mkdir(QStringLiteral("message")));
    const QString outside = both.filePath(QStringLiteral("outside"));
    const QString inside = both.filePath(QStringLiteral("message/"));
    paint(both, QStringLiteral("outside/picture.png"), QSize(100, 100), Qt::red);
    QVERIFY(QFile::link(outside + QStringLiteral("/picture.png"), inside + QStringLiteral("link.png")));
    QVERIFY(QFile::link(outside, inside + QStringLiteral("outside")));
    write(
        both, QStringLiteral("message/drawing.png"),
        QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"><rect width=\"9\" "
                       "height=\"9\" fill=\"red\"/><image href=\"%1/picture.png\"/></svg>")
            .arg(outside)
            .toUtf8());
    write(both, QStringLiteral("message/text.png"), "red");
    src = src.contains(u'%') ? src.arg(outside) : src;
    write(both, QStringLiteral("message/message.smil"),
          QStringLiteral("<smil><body><par><img src=\"%1\"/></par></body></smil>").arg(src).toUtf8());

    const Player player(inside);
    QVERIFY(player.isShown);
    const QImage frame = player.frame();
    QVERIFY(player.shows(src));
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x)
            QVERIFY(frame.pixel(x, y) != QColor(Qt::red).rgb());
    }
    for (const QQuickItem *item : player.all("QQuickImage")) {
        const QUrl source = item->property("source").toUrl();
        QVERIFY2(source.isEmpty() || source.host() == QStringLiteral("parts"), qPrintable(source.toString()));
    }
}

void TestPlayer::noMessage_data()
{
    QTest::addColumn<QString>("path"); // in a folder with what fill() makes
    QTest::addColumn<QByteArray>("smil");
    QTest::addColumn<int>("slides");
    const QByteArray slide = "<smil><body><par><text src=\"blank.txt\"/></par></body></smil>";
    const QString file = QStringLiteral("message.smil");
    QTest::newRow("chosen file") << file << slide << 1;
    QTest::newRow("cut off") << file << slide.left(slide.size() - 20) << 1;
    QTest::newRow("not there") << QStringLiteral("none") << slide << 0;
    QTest::newRow("not a document") << QStringLiteral("wide.png") << slide << 0;
    QTest::newRow("no slide") << file << QByteArray("<smil/>") << 0;
    QTest::newRow("empty") << file << QByteArray() << 0;
    QTest::newRow("binary") << file << QByteArray(5000, '\0') << 0;
    QTest::newRow("far too long") << file << QByteArray(300'000, ' ') + slide << 0;
    QTest::newRow("parts without a document that reads") << QString() << QByteArray("<html/>") << 4;
}

// What is not to be shown says why, and the player does with it what it does with all.
void TestPlayer::noMessage()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, smil);
    QFETCH(int, slides);
    QTemporaryDir folder;
    fill(folder, QString());
    write(folder, QStringLiteral("message.smil"), smil);
    const Player player(folder.filePath(path));
    QVERIFY(player.isShown);
    player.window->resize(360, 2000); // with room for all that is below
    QCOMPARE(player.message.property("slideShow").value<VySmilSlideShow>().slides.size(), slides);
    const QStringList notes = player.message.property("notes").toStringList();
    QCOMPARE(notes.isEmpty(), smil.endsWith("</smil>") && slides == 1);
    for (const QString &note : notes)
        QTRY_VERIFY(player.shows(note));
    player.seek(100);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Space})
        QTest::keyClick(player.window, key);
    QCOMPARE(player.window->property("playing").toBool(), slides > 0);
    QVERIFY(!player.window->grabWindow().isNull());
}

void TestPlayer::plays()
{
    QTemporaryDir folder;
    fill(folder, QStringLiteral("<smil><body><par dur=\"200ms\"><img src=\"wide.png\"/></par>"
                                "<par dur=\"300ms\"><img src=\"tall.png\"/></par></body></smil>"));
    const Player player(folder.path());
    QVERIFY(player.isShown);
    player.window->setProperty("playing", true);
    QElapsedTimer clock;
    clock.start();
    double last = 0;
    while (player.window->property("playing").toBool() && clock.elapsed() < 20'000) {
        QTest::qWait(5);
        QVERIFY(player.position() >= last);
        last = player.position();
        QVERIFY(last < 500);
    }
    QVERIFY(clock.elapsed() >= 400);
    QCOMPARE(last, 499);
    QTest::keyClick(player.window, Qt::Key_Space);
    QVERIFY(player.window->property("playing").toBool());
    QVERIFY(player.position() < 499);
}

void TestPlayer::keysAndBar()
{
    QTemporaryDir folder;
    fill(folder,
         QStringLiteral("<smil><body><par dur=\"2s\"/><par dur=\"4s\"/><par dur=\"4s\"/></body></smil>"));
    const Player player(folder.path());
    QVERIFY(player.isShown);
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(player.window, key);
        return player.position();
    };
    QCOMPARE(press(Qt::Key_Left), 0);
    QCOMPARE(press(Qt::Key_Right), 2000);
    QCOMPARE(press(Qt::Key_Right), 6000);
    QCOMPARE(press(Qt::Key_Right), 6000);
    player.seek(8500);
    QCOMPARE(press(Qt::Key_Left), 6000);
    QCOMPARE(press(Qt::Key_Left), 2000);

    const QQuickItem *bar = player.find("bar");
    const auto pointAt = [&](double part) {
        return bar->mapToScene(QPointF(bar->width() * part, bar->height() / 2)).toPoint();
    };
    const double pixel = 10'000 / bar->width();
    QTest::mousePress(player.window, Qt::LeftButton, {}, pointAt(0.5));
    QVERIFY(std::abs(player.position() - 5000) <= pixel);
    QTest::mouseMove(player.window, pointAt(0.9));
    QVERIFY(std::abs(player.position() - 9000) <= pixel);
    QTest::mouseMove(player.window, pointAt(-0.015));
    QCOMPARE(player.position(), 0);
    QTest::mouseRelease(player.window, Qt::LeftButton, {}, pointAt(1.015));
    QCOMPARE(player.position(), 9999);
}

int main(int argc, char *argv[])
{
    // Without a screen, and the same on each machine.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    TestPlayer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_player.moc"
