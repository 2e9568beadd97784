// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Makes the two photographs and the sound of examples/messages/picnic, in the folder that is given.

#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

#include <cmath>
#include <cstdio>

namespace {

// Painted larger than it is kept, which makes edges soft.
constexpr int detail = 3;
constexpr int quality = 70;

void shade(QPainter &painter, const QRectF &area, const QColor &top, const QColor &bottom)
{
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.fillRect(area, gradient);
}

void paintHills(QPainter &painter, double base, double height, double wave, const QColor &color)
{
    QPainterPath path(QPointF(0, base));
    for (int x = 0; x <= 400; x += 2)
        path.lineTo(x,
                    base - height * (0.6 + 0.4 * std::sin(x / wave + height)) - 2 * std::sin(x / 7.0 + wave));
    path.lineTo(400, base);
    painter.fillPath(path, color);
}

// A lake below hills in the afternoon, 400 x 300.
void paintLake(QPainter &painter)
{
    QRandomGenerator random(7);
    shade(painter, QRectF(0, 0, 400, 170), QColor(0x6fa8dc), QColor(0xfde9c9));
    QRadialGradient sun(QPointF(300, 90), 70);
    sun.setColorAt(0, QColor(0xff, 0xfb, 0xe6));
    sun.setColorAt(0.3, QColor(0xff, 0xf2, 0xc2, 0xa0));
    sun.setColorAt(1, QColor(0xff, 0xf2, 0xc2, 0));
    painter.fillRect(QRectF(0, 0, 400, 170), sun);
    paintHills(painter, 170, 90, 60, QColor(0x8fa9b8));
    paintHills(painter, 170, 50, 38, QColor(0x5f8a72));
    shade(painter, QRectF(0, 168, 400, 132), QColor(0xa9c4cf), QColor(0x2f6583));
    for (int i = 0; i < 260; ++i) {
        const double depth = random.generateDouble();
        const double y = 172 + 120 * depth * depth;
        painter.fillRect(QRectF(400 * random.generateDouble(), y, 10 + 40 * depth, 0.6 + 1.4 * depth),
                         QColor(255, 255, 255, random.bounded(20, 70)));
    }
    QPainterPath shore(QPointF(0, 300));
    shore.cubicTo(0, 250, 90, 262, 210, 286);
    shore.lineTo(240, 300);
    painter.fillPath(shore, QColor(0x567a2f));
    painter.fillRect(QRectF(46, 150, 9, 120), QColor(0x4a3524));
    for (int i = 0; i < 240; ++i) {
        const double angle = 6.28 * random.generateDouble();
        const double far = 52 * std::sqrt(random.generateDouble());
        painter.setBrush(QColor::fromHsv(random.bounded(75, 110), 150, random.bounded(70, 150)));
        painter.drawEllipse(QPointF(50 + far * std::cos(angle), 118 + 0.9 * far * std::sin(angle)), 8, 6);
    }
}

void paintApple(QPainter &painter, const QPointF &middle, const QColor &color)
{
    painter.setBrush(QColor(0, 0, 0, 50));
    painter.drawEllipse(middle + QPointF(5, 8), 27, 24);
    QRadialGradient skin(middle, 26, middle - QPointF(9, 10));
    skin.setColorAt(0, color.lighter(170));
    skin.setColorAt(0.5, color);
    skin.setColorAt(1, color.darker(160));
    painter.setBrush(skin);
    painter.drawEllipse(middle, 26, 24);
    painter.fillRect(QRectF(middle.x() - 1, middle.y() - 12, 3, 10), QColor(0x3d2b1a));
}

// A basket on a blanket, seen from above, 300 x 400.
void paintBasket(QPainter &painter)
{
    painter.fillRect(QRectF(0, 0, 300, 400), QColor(0xf7f1e5));
    for (int i = 0; i < 14; i += 2) {
        painter.fillRect(QRectF(30 * i, 0, 30, 420), QColor(0xc0, 0x2b, 0x2b, 0x90));
        painter.fillRect(QRectF(0, 30 * i, 300, 30), QColor(0xc0, 0x2b, 0x2b, 0x90));
    }
    painter.setBrush(QColor(0, 0, 0, 60));
    painter.drawRoundedRect(QRectF(48, 92, 220, 180), 40, 40);
    painter.setBrush(QColor(0x8a5a2b));
    painter.drawRoundedRect(QRectF(40, 80, 220, 180), 40, 40);
    for (int row = 0; row < 15; ++row)
        for (int column = 0; column < 12; ++column)
            painter.fillRect(QRectF(54 + 16 * column + row % 2 * 8, 90 + 11 * row, 12, 6), QColor(0xc8925a));
    painter.setBrush(QColor(0x4f3218));
    painter.drawRoundedRect(QRectF(64, 102, 172, 136), 30, 30);
    const QPointF places[] = {{105, 145}, {160, 135}, {200, 175}, {120, 195},
                              {165, 200}, {70, 330},  {230, 340}};
    for (int i = 0; i < 7; ++i)
        paintApple(painter, places[i], i % 3 == 0 ? QColor(0x86a82c) : QColor(0xb81f25));
}

bool keep(const QString &path, const QSize &size, void (*paint)(QPainter &))
{
    QImage image(size * detail, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(detail, detail);
    paint(painter);
    painter.end();
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(path, "jpeg", quality);
}

// Three chirps in a second, as WAVE with 8,000 samples of 8 bits.
bool keepBirds(const QString &path)
{
    constexpr quint32 rate = 8'000;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream wave(&file);
    wave.setByteOrder(QDataStream::LittleEndian);
    wave.writeRawData("RIFF", 4);
    wave << quint32(36 + rate);
    wave.writeRawData("WAVEfmt ", 8);
    wave << quint32(16) << quint16(1) << quint16(1) << rate << rate << quint16(1) << quint16(8);
    wave.writeRawData("data", 4);
    wave << rate;
    for (quint32 i = 0; i < rate; ++i) {
        const double within = std::fmod(i / double(rate) * 3, 1);
        const double loud = within < 0.5 ? std::sin(within * 6.28) : 0;
        wave << quint8(128 + 90 * loud * std::sin(i * (1.6 + within)));
    }
    return wave.status() == QDataStream::Ok;
}

} // namespace

int main(int argc, char **argv)
{
    const QString folder = QString::fromLocal8Bit(argc > 1 ? argv[1] : ".") + u'/';
    const bool isKept = keep(folder + QStringLiteral("lake.jpg"), QSize(400, 300), paintLake) &&
                        keep(folder + QStringLiteral("basket.jpg"), QSize(300, 400), paintBasket) &&
                        keepBirds(folder + QStringLiteral("birds.wav"));
    if (!isKept)
        std::fprintf(stderr, "photographs: cannot write into %s\n", qPrintable(folder));
    return isKept ? 0 : 1;
}
