// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_NUMBER_P_H
#define VYSMIL_NUMBER_P_H

#include <VySmil/vysmil.h>

#include <QString>

namespace VySmilPrivate {

// Readers: false if the whole text is no number. White space is what QChar::isSpace() says, digits are 0
// to 9.

/// [space] ["+" | "-"] digits [space], within 32 bits. Leaves 0 on failure.
bool readSigned(QStringView text, qint32 &number);

/// [space] ["+"] digits [space], within 32 bits. Leaves 0 on failure.
bool readUnsigned(QStringView text, quint32 &number);

/// [space] ["+" | "-"] digits [exponent], with a "." before, within or after the digits, and nothing behind
/// it. Leaves the number that the text begins with on failure, or 0; beyond the range the greatest finite
/// one.
bool readFloat(QStringView text, float &number);

/// A float before the first "%", as a fraction of 1; what comes behind the "%" does not matter. Without a "%"
/// false, and \a fraction stays; otherwise it is left as by readFloat(), divided by 100.
bool readFraction(QStringView text, float &fraction);

/// The result of a fromString() that hangs on one number.
inline int resultOf(bool isRead)
{
    return isRead ? VySmil::RESULT_OK : VySmil::RESULT_UNUSABLE;
}

// Printers.

/// With six decimals.
inline QString fixedSix(float number)
{
    return QString::number(static_cast<double>(number), 'f', 6);
}

/// With at most six significant digits, as "%g".
inline QString significantSix(float number)
{
    return QString::number(static_cast<double>(number), 'g', 6);
}

/// A fraction of 1 as a percentage, with at most six significant digits.
inline QString fractionText(float fraction)
{
    return significantSix(fraction * 100) + u'%';
}

/// At least two characters wide, filled up with \a fill.
inline QString twoDigits(quint32 number, char16_t fill = u'0')
{
    QString text = QString::number(number);
    if (number < 10)
        text.prepend(QChar(fill));
    return text;
}

} // namespace VySmilPrivate

#endif
