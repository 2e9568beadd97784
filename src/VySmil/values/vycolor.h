// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYCOLOR_H
#define VYSMIL_VYCOLOR_H

#include <VySmil/vysmil.h>

#include <QColor>
#include <QString>

/// A colour in the syntax of CSS2: "transparent", "inherit", "#ff8000", "#f80", "rgb(255,128,0)",
/// "rgb(100%,50%,0%)", or the name of a system colour (CSS2, System Colors, and "Grayed").
///
/// A read sets "kind" and the field that the kind names, and leaves the others. After a failed read "kind" is
/// COLOR_NONE. Components outside of 0 to 255 fail.
class VYSMIL_EXPORT VySmil::VyColor
{
public:
    /// Which notation a colour has.
    enum COLOR_KIND : qint32 {
        COLOR_TRANSPARENT = 0,
        COLOR_NAMED = 1,  ///< the text in "name"; no text reads as this
        COLOR_RGB = 2,    ///< the colour in "color"
        COLOR_SYSTEM = 3, ///< the system colour called "name", of which the library knows no more
        COLOR_INHERIT = 4,
        COLOR_NONE = 5, ///< no value
    };

    /// Reads a colour in any letter case.
    int fromString(const QString &text);
    /// A colour with red, green and blue is printed as "#ff8000"; a system colour in lower case.
    [[nodiscard]] QString toString() const;

    COLOR_KIND kind = COLOR_NONE; ///< which of the other fields counts
    QColor color;                 ///< while "kind" is COLOR_RGB; invalid at first
    QString name;                 ///< while "kind" is COLOR_SYSTEM or COLOR_NAMED
};

Q_DECLARE_TYPEINFO(VySmil::VyColor, Q_RELOCATABLE_TYPE);

#endif
