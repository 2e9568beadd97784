// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "picture.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr qint64 maxPixels = 1 << 26;
constexpr int maxSide = 65'535;
// What the headers that are read below take at most.
constexpr qsizetype headerSize = 30;

int littleEndian32(const QByteArray &bytes, int position)
{
    return qFromLittleEndian<qint32>(bytes.constData() + position);
}

int littleEndian16(const QByteArray &bytes, int position)
{
    return qFromLittleEndian<quint16>(bytes.constData() + position);
}

// Qt reads WebP only where a plugin for it is installed (RFC 9649).
QSize sizeOfWebp(const QByteArray &bytes)
{
    const QByteArray chunk = bytes.mid(12, 4);
    if (chunk == "VP8X")
        return {(littleEndian32(bytes, 24) & 0xffffff) + 1, (littleEndian32(bytes, 26) >> 8 & 0xffffff) + 1};
    if (chunk == "VP8L")
        return {(littleEndian32(bytes, 21) & 0x3fff) + 1, (littleEndian32(bytes, 21) >> 14 & 0x3fff) + 1};
    if (chunk == "VP8 ")
        return {littleEndian16(bytes, 26) & 0x3fff, littleEndian16(bytes, 28) & 0x3fff};
    return {};
}

// A height below 0 is that of a picture whose first line is its uppermost.
QSize sizeOfBmp(const QByteArray &bytes)
{
    if (littleEndian32(bytes, 14) == 12)
        return {littleEndian16(bytes, 18), littleEndian16(bytes, 20)};
    return {littleEndian32(bytes, 18), static_cast<int>(std::abs(qint64(littleEndian32(bytes, 22))))};
}

// JPEG has its size, and how the camera was held, anywhere.
Picture jpegOf(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, "jpeg");
    reader.setAutoDetectImageFormat(false);
    Picture picture;
    picture.stored = reader.size();
    picture.turned = reader.transformation();
    return picture;
}

// The others have their size at one place; Qt's readers would write to standard error about broken ones.
Picture withHeader(const QByteArray &bytes)
{
    Picture picture;
    if (bytes.startsWith("\xff\xd8\xff")) {
        picture = jpegOf(bytes);
        picture.mimeType = QStringLiteral("image/jpeg");
    } else if (bytes.startsWith("\x89PNG\r\n\x1a\n")) {
        picture.stored = QSize(qFromBigEndian<qint32>(bytes.constData() + 16),
                               qFromBigEndian<qint32>(bytes.constData() + 20));
        picture.mimeType = QStringLiteral("image/png");
    } else if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a")) {
        picture.stored = QSize(littleEndian16(bytes, 6), littleEndian16(bytes, 8));
        picture.mimeType = QStringLiteral("image/gif");
    } else if (bytes.startsWith("BM")) {
        picture.stored = sizeOfBmp(bytes);
        picture.mimeType = QStringLiteral("image/bmp");
    } else if (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP") {
        picture.stored = sizeOfWebp(bytes);
        picture.mimeType = QStringLiteral("image/webp");
    }
    return picture;
}

} // namespace

QSize Picture::size() const
{
    return turned.testFlag(QImageIOHandler::TransformationRotate90) ? stored.transposed() : stored;
}

std::optional<Picture> pictureOf(const QByteArray &bytes)
{
    if (bytes.size() < headerSize)
        return std::nullopt;
    Picture picture = withHeader(bytes);
    const QSize size = picture.stored;
    if (size.isEmpty() || std::max(size.width(), size.height()) > maxSide ||
        qint64(size.width()) * size.height() > maxPixels)
        return std::nullopt;
    picture.bytes = bytes;
    return picture;
}
