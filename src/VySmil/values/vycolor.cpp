// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/values/number_p.h>
#include <VySmil/values/vycolor.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr QStringView systemColors[] = {
    u"activeborder",
    u"activecaption",
    u"appworkspace",
    u"background",
    u"buttonface",
    u"buttonhighlight",
    u"buttonshadow",
    u"buttontext",
    u"captiontext",
    u"graytext",
    u"grayed",
    u"highlight",
    u"highlighttext",
    u"inactiveborder",
    u"inactivecaption",
    u"inactivecaptiontext",
    u"infobackground",
    u"infotext",
    u"menu",
    u"menutext",
    u"scrollbar",
    u"threeddarkshadow",
    u"threedface",
    u"threedhighlight",
    u"threedlightshadow",
    u"threedshadow",
    u"window",
    u"windowframe",
    u"windowtext",
};

struct Rgb
{
    int component[3];

    bool isInRange() const
    {
        return std::all_of(std::begin(component), std::end(component),
                           [](int c) { return c >= 0 && c <= 255; });
    }
};

// "#" and three or six hexadecimal digits.
bool readHexadecimal(const QString &text, Rgb &rgb)
{
    if (text.size() != 7 && text.size() != 4)
        return false;
    const qsizetype width = text.size() / 3;
    qsizetype at = 1;
    for (int &component : rgb.component) {
        const QString digits = text.mid(at, width);
        bool isRead = false;
        component = (width == 1 ? digits.repeated(2) : digits).toInt(&isRead, 16);
        if (!isRead)
            return false;
        at += width;
    }
    return true;
}

bool readComponent(QStringView text, bool inPercent, int &component)
{
    if (!inPercent)
        return VySmilPrivate::readSigned(text, component);
    const qsizetype percent = text.indexOf(u'%');
    float number = 0;
    if (!VySmilPrivate::readFloat(percent < 0 ? text : text.first(percent), number))
        return false;
    // A number that is far out of range stays out of range, within what an int holds.
    component = static_cast<int>(std::clamp(number, -1000.0F, 1000.0F)) * 255 / 100;
    return true;
}

// "rgb(" and three numbers, parted by "," and closed by ")".
bool readFunction(QStringView text, Rgb &rgb)
{
    const bool inPercent = text.contains(u'%');
    qsizetype from = 4;
    QStringView pieces[3];
    const QStringView ends = u",,)";
    for (int i = 0; i < 3; ++i) {
        const qsizetype end = text.indexOf(ends[i], from);
        if (end < 0)
            return false;
        pieces[i] = text.sliced(from, end - from);
        from = end + 1;
    }
    for (int i = 0; i < 3; ++i) {
        if (!readComponent(pieces[i], inPercent, rgb.component[i]))
            return false;
    }
    return true;
}

} // namespace

int VySmil::VyColor::fromString(const QString &text)
{
    const QString lowered = text.trimmed().toLower();
    kind = COLOR_NONE;
    if (lowered.isEmpty())
        return RESULT_OK;
    if (lowered == QLatin1String("transparent")) {
        kind = COLOR_TRANSPARENT;
        return RESULT_OK;
    }
    if (lowered == QLatin1String("inherit")) {
        kind = COLOR_INHERIT;
        return RESULT_OK;
    }
    const bool isHexadecimal = lowered.startsWith(u'#');
    if (isHexadecimal || lowered.startsWith(QLatin1String("rgb"))) {
        Rgb rgb{};
        const bool isRead = isHexadecimal ? readHexadecimal(lowered, rgb) : readFunction(lowered, rgb);
        if (!isRead || !rgb.isInRange())
            return RESULT_UNUSABLE;
        color.setRgb(rgb.component[0], rgb.component[1], rgb.component[2]);
        kind = COLOR_RGB;
        return RESULT_OK;
    }
    if (std::find(std::begin(systemColors), std::end(systemColors), lowered) == std::end(systemColors))
        return RESULT_UNUSABLE;
    kind = COLOR_SYSTEM;
    name = lowered;
    return RESULT_OK;
}

QString VySmil::VyColor::toString() const
{
    switch (kind) {
    case COLOR_NONE:
        return QString();
    case COLOR_TRANSPARENT:
        return QStringLiteral("transparent");
    case COLOR_INHERIT:
        return QStringLiteral("inherit");
    case COLOR_SYSTEM:
    case COLOR_NAMED:
        return name;
    default:
        return QString::asprintf("#%02x%02x%02x", unsigned(color.red()), unsigned(color.green()),
                                 unsigned(color.blue()));
    }
}
