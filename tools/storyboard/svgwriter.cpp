// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "svgwriter.h"

#include <algorithm>
#include <cmath>

namespace {

const char *const styleSheet =
    "svg { color: #1d2433 } text { font: 12px sans-serif; fill: currentColor } "
    ".title { font-weight: bold; font-size: 14px } .faint { fill: #5b6475 } "
    ".note { fill: #a33c00; font-style: italic } "
    ".card { fill: #fff; stroke: #d5d9e0 } .screen { fill: #fbfbf9; stroke: #1d2433; stroke-width: 1.5 } "
    ".medium { stroke-width: 1 } .image { fill: #dcebfa; stroke: #2f6fb0 } "
    ".video { fill: #e6e0f5; stroke: #6a4fb3 } .text { fill: #fff8df; stroke: #a8861b } "
    ".other { fill: #ececec; stroke: #666 } .audio { fill: #dff2e1; stroke: #2f7d3b } "
    ".painted { stroke-opacity: .3 } .guessed { stroke: #a33c00; stroke-dasharray: 5 3; stroke-opacity: 1 } "
    ".icon { fill: currentColor; fill-opacity: .75 } .large { fill-opacity: .12 } "
    ".track { fill: #eef0f3 } .tick { stroke: #5b6475 }";

// The path of an icon in a square of 14.
QString iconOf(VySmilMedium::MEDIUM_KIND kind)
{
    switch (kind) {
    case VySmilMedium::MEDIUM_IMAGE:
        return QStringLiteral("M1 12 L5 5 L8 9 L10 7 L13 12 Z M10 2 h2 v2 h-2 Z");
    case VySmilMedium::MEDIUM_TEXT:
        return QStringLiteral("M1 2 h12 v2 h-12 Z M1 6 h12 v2 h-12 Z M1 10 h8 v2 h-8 Z");
    case VySmilMedium::MEDIUM_AUDIO:
        return QStringLiteral("M1 5 h3 L8 1 V13 L4 9 H1 Z M10 4 h1.5 v6 h-1.5 Z M12.5 2 h1.5 v10 h-1.5 Z");
    case VySmilMedium::MEDIUM_VIDEO:
        return QStringLiteral("M2 1 L13 7 L2 13 Z");
    default:
        return QStringLiteral("M2 1 h7 l3 3 v9 h-10 Z");
    }
}

QString translation(double x, double y)
{
    return QStringLiteral("translate(%1 %2)").arg(number(x), number(y));
}

// What turns a picture from how it is stored to how it is to be seen: mirrored first, then turned.
QString turnOf(const Picture &picture)
{
    using Handler = QImageIOHandler;
    const int width = picture.stored.width();
    const int height = picture.stored.height();
    QStringList steps{QStringLiteral("translate(0 0)")};
    if (picture.turned.testFlag(Handler::TransformationRotate90))
        steps << QStringLiteral("translate(%1 0) rotate(90)").arg(height);
    if (picture.turned.testFlag(Handler::TransformationMirror))
        steps << QStringLiteral("translate(%1 0) scale(-1 1)").arg(width);
    if (picture.turned.testFlag(Handler::TransformationFlip))
        steps << QStringLiteral("translate(0 %1) scale(1 -1)").arg(height);
    return steps.join(u' ');
}

} // namespace

QString number(double value)
{
    return QString::number(std::round(value * 100) / 100, 'g', 12);
}

void SvgWriter::startPicture(double width, double height)
{
    m_writer.writeStartDocument();
    start("svg", {{"xmlns", QStringLiteral("http://www.w3.org/2000/svg")},
                  {"xmlns:xlink", QStringLiteral("http://www.w3.org/1999/xlink")},
                  {"width", number(width)},
                  {"height", number(height)},
                  {"viewBox", QStringLiteral("0 0 %1 %2").arg(number(width), number(height))}});
    m_writer.writeTextElement(QStringLiteral("style"), QString::fromLatin1(styleSheet));
    element("rect", {{"width", QStringLiteral("100%")},
                     {"height", QStringLiteral("100%")},
                     {"fill", QStringLiteral("#f3f4f6")}});
}

QByteArray SvgWriter::finished()
{
    m_writer.writeEndDocument();
    return m_svg;
}

void SvgWriter::start(const char *name, Attributes attributes)
{
    m_writer.writeStartElement(QString::fromLatin1(name));
    for (const auto &[key, value] : attributes)
        m_writer.writeAttribute(QString::fromLatin1(key), value);
}

void SvgWriter::element(const char *name, Attributes attributes)
{
    start(name, attributes);
    end();
}

void SvgWriter::startGroup(double x, double y, const QString &id)
{
    if (id.isEmpty())
        start("g", {{"transform", translation(x, y)}});
    else
        start("g", {{"id", id}, {"transform", translation(x, y)}});
}

void SvgWriter::startClipped(const QString &id, double width, double height)
{
    start("clipPath", {{"id", id}});
    element("rect", {{"width", number(width)}, {"height", number(height)}});
    end();
    start("g", {{"clip-path", QStringLiteral("url(#%1)").arg(id)}});
}

void SvgWriter::text(double x, double y, const QString &content, const char *style, const char *anchor)
{
    start("text", {{"class", QString::fromLatin1(style)},
                   {"x", number(x)},
                   {"y", number(y)},
                   {"text-anchor", QString::fromLatin1(anchor)}});
    characters(content);
    end();
}

void SvgWriter::line(double left, double right, double y, const Line &line)
{
    start("text", {{"class", QStringLiteral("caption")},
                   {"x", number(line.isRightToLeft ? right : left)},
                   {"y", number(y)},
                   {"direction", line.isRightToLeft ? QStringLiteral("rtl") : QStringLiteral("ltr")}});
    characters(line.text);
    end();
}

void SvgWriter::characters(const QString &content)
{
    // What XML cannot carry cannot be shown either; half a surrogate pair does not pass UTF-8.
    QString shown = QString::fromUtf8(content.toUtf8());
    std::replace_if(
        shown.begin(), shown.end(), [](QChar c) { return c < u' ' || c >= QChar(0xfffe); },
        QChar(QChar::ReplacementCharacter));
    m_writer.writeCharacters(shown);
}

void SvgWriter::definePicture(const QString &id, const Picture &picture)
{
    const QSize size = picture.size();
    start("symbol", {{"id", id},
                     {"viewBox", QStringLiteral("0 0 %1 %2").arg(size.width()).arg(size.height())},
                     {"preserveAspectRatio", QStringLiteral("none")}});
    // Not every viewer turns a photograph as its camera was held, so none is to.
    element("image",
            {{"width", QString::number(picture.stored.width())},
             {"height", QString::number(picture.stored.height())},
             {"preserveAspectRatio", QStringLiteral("none")},
             {"style", QStringLiteral("image-orientation: none")},
             {"transform", turnOf(picture)},
             {"xlink:href", QStringLiteral("data:%1;base64,%2")
                                .arg(picture.mimeType, QString::fromLatin1(picture.bytes.toBase64()))}});
    end();
}

void SvgWriter::picture(const QString &id, double x, double y, double width, double height)
{
    element("use", {{"xlink:href", u'#' + id},
                    {"x", number(x)},
                    {"y", number(y)},
                    {"width", number(width)},
                    {"height", number(height)}});
}

void SvgWriter::ground(double width, double height, const QColor &color)
{
    element("rect", {{"class", QStringLiteral("ground")},
                     {"width", number(width)},
                     {"height", number(height)},
                     {"fill", color.name()}});
}

void SvgWriter::icon(VySmilMedium::MEDIUM_KIND kind, double x, double y, double size)
{
    element("path",
            {{"class", size > iconSize ? QStringLiteral("icon large") : QStringLiteral("icon")},
             {"d", iconOf(kind)},
             {"transform", translation(x, y) + QStringLiteral(" scale(%1)").arg(number(size / iconSize))}});
}
