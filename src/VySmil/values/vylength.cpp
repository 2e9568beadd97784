// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/values/number_p.h>
#include <VySmil/values/vylength.h>

#include <algorithm>

int VySmil::VyLength::fromString(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty()) {
        unit = UNIT_NONE;
        return RESULT_OK;
    }
    if (trimmed.endsWith(u'%')) {
        unit = UNIT_PERCENT;
        return VySmilPrivate::resultOf(VySmilPrivate::readFloat(trimmed.chopped(1), value.percent));
    }
    unit = UNIT_PIXELS;
    // Numbers of other scripts belong to the run, so that it fails rather than ends before them.
    const auto end = std::find_if_not(trimmed.begin(), trimmed.end(), [](QChar c) { return c.isNumber(); });
    return VySmilPrivate::resultOf(
        VySmilPrivate::readSigned(trimmed.first(end - trimmed.begin()), value.pixels));
}

QString VySmil::VyLength::toString() const
{
    switch (unit) {
    case UNIT_NONE:
        return QString();
    case UNIT_PIXELS:
        return QString::number(value.pixels);
    default:
        return VySmilPrivate::fixedSix(value.percent) + u'%';
    }
}
