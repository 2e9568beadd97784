// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/values/number_p.h>
#include <VySmil/values/vycoords.h>

namespace {

// The text before the first remaining ",", which is cut off rest with the ","; without one all of rest, which
// stays.
QStringView nextPiece(QStringView &rest)
{
    const qsizetype comma = rest.indexOf(u',');
    if (comma < 0)
        return rest;
    const QStringView piece = rest.first(comma);
    rest = rest.sliced(comma + 1);
    return piece;
}

} // namespace

int VySmil::VyCoords::fromString(const QString &text)
{
    unit = UNIT_NONE;
    QStringView rest = QStringView(text).trimmed();
    if (rest.isEmpty())
        return RESULT_OK;
    const bool inPercent = rest.contains(u'%');
    if (inPercent && rest.count(u',') != 3)
        return RESULT_UNUSABLE;
    for (Value &slot : coords) {
        const QStringView piece = nextPiece(rest);
        const bool isRead = inPercent ? VySmilPrivate::readFraction(piece, slot.fraction)
                                      : VySmilPrivate::readSigned(piece, slot.pixels);
        if (!isRead)
            return RESULT_UNUSABLE;
    }
    unit = inPercent ? UNIT_PERCENT : UNIT_PIXELS;
    return RESULT_OK;
}

QString VySmil::VyCoords::toString() const
{
    if (unit == UNIT_NONE)
        return QString();
    QString text;
    for (const Value &slot : coords) {
        if (!text.isEmpty())
            text += u',';
        if (unit == UNIT_PIXELS)
            text += QString::number(slot.pixels);
        else
            text += VySmilPrivate::fractionText(slot.fraction);
    }
    return text;
}
