// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_color_p.h>
#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelembase.h>
#include <VySmil/values/vycolor.h>

#include <algorithm>

namespace {

// Numbers, "transparent", or a name of CSS; what a system or a parent would say is no colour here.
QColor colorOf(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty())
        return QColor();
    VySmil::VyColor color;
    if (color.fromString(text) == VySmil::RESULT_OK && color.kind == VySmil::VyColor::COLOR_RGB)
        return color.color;
    // QColor takes notations of its own too.
    const bool isName = std::all_of(trimmed.begin(), trimmed.end(), [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
    });
    return isName ? QColor::fromString(trimmed) : QColor();
}

} // namespace

QColor VySmilPrivate::backgroundOf(const VySmilElemBase &elem)
{
    const QColor background = colorOf(elem.getAttribute(QStringLiteral("background-color")));
    return background.isValid() ? background : colorOf(elem.getAttribute(QStringLiteral("backgroundColor")));
}

QColor VySmilPrivate::foregroundOf(const VySmilElemBase &text)
{
    for (const VySmilElemBase *child : *text.getSubElements()) {
        if (child->getElemType() == QLatin1String("param") &&
            child->getAttribute(nameOf(Attr::Name))
                    .compare(QLatin1String("foreground-color"), Qt::CaseInsensitive) == 0)
            return colorOf(child->getAttribute(QStringLiteral("value")));
    }
    return QColor();
}
