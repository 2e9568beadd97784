// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_SVGWRITER_H
#define VYSMIL_TOOLS_SVGWRITER_H

#include "lettering.h"
#include "picture.h"

#include <VySmil/message/vysmilmedium.h>

#include <QColor>
#include <QXmlStreamWriter>

#include <initializer_list>
#include <utility>

// All in pixels of the picture.
constexpr double cardWidth = 260;
constexpr double maxScreenHeight = 320;
constexpr double gap = 24;
constexpr double lineHeight = 16;
constexpr double barHeight = 8;
constexpr double iconSize = 14;

/// Rounded to hundredths.
QString number(double value);

/// Writes the elements that a storyboard is made of. Whatever is written is escaped; nothing that it
/// writes runs, or refers to anything outside of the picture.
class SvgWriter
{
public:
    using Attributes = std::initializer_list<std::pair<const char *, QString>>;

    SvgWriter() : m_writer(&m_svg) { m_writer.setAutoFormatting(true); }
    Q_DISABLE_COPY_MOVE(SvgWriter)

    void startPicture(double width, double height);
    /// Ends what is open, and gives all that was written.
    QByteArray finished();

    void start(const char *name, Attributes attributes);
    void end() { m_writer.writeEndElement(); }
    void element(const char *name, Attributes attributes);
    /// A group whose origin lies at \a x, \a y.
    void startGroup(double x, double y, const QString &id = QString());
    /// A group of which nothing is seen beyond \a width and \a height.
    void startClipped(const QString &id, double width, double height);
    void text(double x, double y, const QString &content, const char *style = "label",
              const char *anchor = "start");
    void icon(VySmilMedium::MEDIUM_KIND kind, double x, double y, double size = iconSize);

    /// A line of a caption between two sides, from the one where it begins.
    void line(double left, double right, double y, const Line &line);
    /// Holds a picture, without showing it.
    void definePicture(const QString &id, const Picture &picture);
    /// Shows a picture that is held.
    void picture(const QString &id, double x, double y, double width, double height);
    /// A plain area.
    void ground(double width, double height, const QColor &color);

private:
    void characters(const QString &content);

    QByteArray m_svg;
    QXmlStreamWriter m_writer;
};

#endif
