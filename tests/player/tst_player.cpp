// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "message.h"

#include <QDir>
#include <QPainter>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

QImage picture(int width, int height, const char *color)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(QColor(color));
    return image;
}

// One colour each, and sizes that no region here has.
const QHash<QString, QImage> pictures = {
    {QStringLiteral("wide.png"), picture(200, 50, "#ff0000")},
    {QStringLiteral("tall.png"), picture(40, 210, "#00ff00")},
    {QStringLiteral("small.png"), picture(30, 30, "#0000ff")},
    {QStringLiteral("large.png"), picture(500, 490, "#ff00ff")},
    {QStringLiteral("../secret.png"), picture(90, 90, "#00ffff")}, // which no message may show
};

// The player with a message, paused, and with room for all that stands below the slides.
struct Player
{
    Message message;
    VySmilSlideShow show = message.property("slideShow").value<VySmilSlideShow>();
    QQmlApplicationEngine engine;
    QQuickWindow *window = nullptr;

    explicit Player(const QString &path) : message(path)
    {
        engine.addImageProvider(QStringLiteral("parts"), new Pictures(message));
        engine.setInitialProperties({{QStringLiteral("message"), QVariant::fromValue(&message)},
                                     {QStringLiteral("playing"), false},
                                     {QStringLiteral("height"), 2000}});
        engine.load(QUrl::fromLocalFile(QStringLiteral(PLAYER "/Player.qml")));
        window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
        if (!window || !QTest::qWaitForWindowExposed(window))
            qFatal("The player does not come up");
    }
    double position() const { return window->property("position").toDouble(); }
    QRectF placeOf(const char *name) const
    {
        const auto *item = window->findChild<QQuickItem *>(QString::fromLatin1(name));
        return item->mapRectToScene(item->boundingRect());
    }
};

// Compares what is seen with what the library says is there, on a grid of points but those near to an edge or
// a text, and gathers the colours.
void compareFrame(const Player &player, const VySmilSlide &slide, qint32 ms, QSet<QString> *seen)
{
    const QRectF stage = player.placeOf("stage");
    QImage expected(player.window->size(), QImage::Format_ARGB32);
    expected.fill(Qt::transparent);
    QPainter painter(&expected);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.translate(stage.topLeft());
    painter.scale(stage.width() / player.show.size.width(), stage.height() / player.show.size.height());
    const QColor background = player.show.background;
    painter.fillRect(QRect({}, player.show.size), background.isValid() ? background : Qt::white);
    for (const int index : slide.mediaAt(ms)) {
        const VySmilMedium &medium = slide.media[index];
        const QImage picture = medium.part >= 0 ? pictures.value(medium.src) : QImage();
        painter.setClipRect(medium.rect);
        if (picture.isNull() || medium.background.isValid())
            painter.fillRect(medium.rect, picture.isNull() ? Qt::transparent : medium.background);
        painter.drawImage(QRectF(medium.area.topLeft(), medium.shownSize(picture.size())), picture);
    }

    const QImage frame = player.window->grabWindow();
    for (int y = 3; y < expected.height() - 3; y += 7) {
        for (int x = 3; x < expected.width() - 3; x += 7) {
            QVERIFY(frame.pixel(x, y) != qRgb(0, 255, 255));
            const QRgb color = expected.pixel(x, y);
            if (qAlpha(color) == 0 || color != expected.pixel(x - 3, y - 3) ||
                color != expected.pixel(x + 3, y + 3))
                continue;
            QCOMPARE(frame.pixelColor(x, y), QColor(color));
            *seen << QColor(color).name();
        }
    }
}

// Gathers the texts to be seen, alone, with their colour and with their time. False while a picture is
// loading, and where a text may be taken for markup.
bool gatherTexts(const QQuickItem *item, qint32 ms, QSet<QString> *seen)
{
    if (item->property("status").toInt() == 2 || item->property("textFormat").toInt() != Qt::PlainText)
        return false;
    const QString text = item->property("text").toString();
    if (item->isVisible() && item->width() > 0)
        *seen << text << text + item->property("color").toString() << QString::number(ms) + text;
    const QList<QQuickItem *> children = item->childItems();
    return std::all_of(children.cbegin(), children.cend(),
                       [&](const QQuickItem *child) { return gatherTexts(child, ms, seen); });
}

} // namespace

class TestPlayer : public QObject
{
    Q_OBJECT

    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    QTemporaryDir m_outside;
    QDir m_folder{m_outside.filePath(QStringLiteral("message"))};

public:
    // Without a screen, and the same on each machine.
    static void initMain()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
    }

private Q_SLOTS:
    void initTestCase();
    void shows_data();
    void shows();
    void plays();
};

// All messages have the same parts, of which they use some.
void TestPlayer::initTestCase()
{
    Message::registerTypes();
    QVERIFY(m_folder.mkpath(QStringLiteral(".")));
    for (auto each = pictures.cbegin(); each != pictures.cend(); ++each)
        QVERIFY(each->save(m_folder.filePath(each.key()), "BMP")); // what a name says is not relied on
    QVERIFY(QFile::link(QStringLiteral("../secret.png"), m_folder.filePath(QStringLiteral("link.png"))));
    write(QStringLiteral("bitmap.png"), "P3 1 1 255 0 255 255"); // of a sort that is not drawn
    write(QStringLiteral("card.vcf"), "BEGIN:VCARD");
    write(QStringLiteral("a.txt"), "one\ntwo");
    write(QStringLiteral("markup.txt"), "<img src=\"http://x.example\"><b>x");
    write(QStringLiteral("<b>y\n\U0001F408"), "?");
}

void TestPlayer::shows_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QStringList>("sights"); // seen at some time, or never where "!" stands before
    const auto row = [](const char *name, const char *document, const char *sights) {
        QTest::newRow(name) << QString::fromUtf8(document) << QString::fromUtf8(sights).split(u'|');
    };
    row("times",
        R"(<smil><body><par dur="4s"><img src="wide.png" end="2s"/><img src="tall.png" begin="1s" dur="2s"/>
           <img src="small.png" begin="3s"/></par><par dur="1s"/><img src="large.png" dur="1s"/></body></smil>)",
        "#ff0000|#00ff00|#0000ff|#ff00ff|!wide.png|a.txt");
    row("places",
        R"(<smil><head><layout><root-layout width="2000" height="9000" background-color="#202020"/>
           <region id="a" left="-10%" top="10%" width="1400" height="3000" fit="meet" background-color="#ffff00"/>
           <region id="b" left="40%" top="20%" width="30%" height="50%" fit="slice"/></layout></head>
           <body><par dur="3s"><img src="large.png" region="a"/><img src="wide.png" region="b" begin="1s"/>
           <img src="tall.png" region="a" begin="2s"/></par></body></smil>)",
        "#202020|#ffff00|#ff00ff|#00ff00|#ff0000");
    row("texts and names",
        R"(<smil><head><layout><region id="Text" background-color="transparent"/>
           <region id="b" background-color="black"/></layout></head>
           <body><par dur="2s"><text src="a.txt"/><text src="markup.txt" region="b"/><ref src="card.vcf"/>
           <audio src="&lt;b>&#10;&#x202e;x.mp3" end="1s"/></par>
           <par><img src="gone" alt="&lt;b>&#10;&#x2028;x"/></par></body></smil>)",
        "one\ntwo#263238|<img src=\"http://x.example\"><b>x#ffffff|!a.txt|card.vcf|<b>y\uFFFD\U0001F408|"
        "0♪ <b>\uFFFD\uFFFDx.mp3|!1000♪ <b>\uFFFD\uFFFDx.mp3|<b>\uFFFD\uFFFDx");
    row("outside of the folder",
        R"(<smil><body><par><img src="../secret.png"/></par><par><img src="link.png"/></par>
           <par><img src="image://parts/-1"/></par><par><img src="bitmap.png"/></par></body></smil>)",
        "../secret.png|link.png|image://parts/-1|bitmap.png");
    row("no slide", "<smil/>", "#ff0000|#00ff00");
    row("cut off", R"(<smil><body><par><img src="wide.png"/></pa)", "#ff0000|tall.png");
    row("no message", "<html/>", "#ff0000|#00ff00|one\ntwo#263238|card.vcf");
    row("too long", QByteArray(300'000, ' ').constData(), "No SMIL can be read: the files in their order.");
}

void TestPlayer::shows()
{
    QFETCH(QString, document);
    QFETCH(QStringList, sights);
    write(QStringLiteral("m.smil"), document.toUtf8());
    // A file that is no picture is said to be none; no other warning belongs to any message.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!.*Failed to get image from provider)")));

    const Player player(m_folder.path());
    QVERIFY(QRectF({}, player.window->size()).contains(player.placeOf("stage") | player.placeOf("bar")));
    QSet<QString> seen;
    QTRY_VERIFY(gatherTexts(player.window->contentItem(), 0, &seen));
    qint32 start = 0;
    for (const VySmilSlide &slide : player.show.slides) {
        for (qint32 ms = 0; ms < slide.durationMs; ms += 500) {
            QMetaObject::invokeMethod(player.window, "seek", Q_ARG(QVariant, start + ms));
            QTRY_VERIFY(gatherTexts(player.window->contentItem(), start + ms, &seen));
            compareFrame(player, slide, ms, &seen);
            if (QTest::currentTestFailed())
                return;
        }
        start += slide.durationMs;
    }
    sights << player.message.property("notes").toStringList();
    for (const QString &sight : sights)
        QVERIFY2(seen.contains(sight.mid(sight[0] == u'!')) != (sight[0] == u'!'), qPrintable(sight));
}

void TestPlayer::plays()
{
    write(QStringLiteral("m.smil"),
          "<smil><body><par dur='0.2s'/><par dur='4s'/><par dur='4s'/></body></smil>");
    const Player player(m_folder.filePath(QStringLiteral("m.smil")));
    const QRectF bar = player.placeOf("bar");
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(player.window, key);
        return player.position();
    };
    const auto click = [&](double part) {
        const QPointF point = bar.topLeft() + QPointF(bar.width() * part, 3);
        QTest::mouseClick(player.window, Qt::LeftButton, {}, point.toPoint());
        return player.position();
    };
    press(Qt::Key_Right);
    QCOMPARE(press(Qt::Key_Right), 4200);
    QCOMPARE(press(Qt::Key_Right), 4200);
    QVERIFY(qAbs(click(0.5) - 4100) < 50);
    QCOMPARE(press(Qt::Key_Left), 200); // the start of the slide, or the one before
    QCOMPARE(press(Qt::Key_Left), 0);
    QCOMPARE(click(-0.015), 0);
    QCOMPARE(click(1.015), 8199);
    QVERIFY(press(Qt::Key_Space) < 4000); // from the end anew
    QTRY_VERIFY(player.position() >= 300);
    press(Qt::Key_Space);
    QVERIFY(click(0.98) < 8199);
    press(Qt::Key_Space);
    QTRY_VERIFY(!player.window->property("playing").toBool());
    QCOMPARE(player.position(), 8199);
}

QTEST_MAIN(TestPlayer)
#include "tst_player.moc"
