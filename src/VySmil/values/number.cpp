// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/values/number_p.h>

#include <QLocale>

#include <cmath>
#include <limits>

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

qsizetype skipDigits(QStringView text, qsizetype from)
{
    while (from < text.size() && isDigit(text[from]))
        ++from;
    return from;
}

qsizetype skipSign(QStringView text, qsizetype from)
{
    return from < text.size() && (text[from] == u'+' || text[from] == u'-') ? from + 1 : from;
}

// The digits of text as a number not above limit; false if they are none, or more than that.
bool readDigits(QStringView text, quint32 limit, quint32 &number)
{
    quint64 value = 0;
    for (const QChar c : text) {
        if (!isDigit(c))
            return false;
        value = value * 10 + static_cast<quint64>(c.unicode() - u'0');
        if (value > limit)
            return false;
    }
    number = static_cast<quint32>(value);
    return !text.isEmpty();
}

// The length of the floating-point number that text begins with, 0 if it begins with none.
qsizetype floatLength(QStringView text)
{
    const qsizetype start = skipSign(text, 0);
    qsizetype end = skipDigits(text, start);
    qsizetype digits = end - start;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fractionEnd = skipDigits(text, end + 1);
        digits += fractionEnd - end - 1;
        end = fractionEnd;
    }
    if (digits == 0)
        return 0;
    if (end < text.size() && (text[end] == u'e' || text[end] == u'E')) {
        const qsizetype exponent = skipSign(text, end + 1);
        const qsizetype exponentEnd = skipDigits(text, exponent);
        if (exponentEnd > exponent)
            end = exponentEnd;
    }
    return end;
}

} // namespace

bool VySmilPrivate::readSigned(QStringView text, qint32 &number)
{
    number = 0;
    text = text.trimmed();
    const bool isNegative = text.startsWith(u'-');
    const quint32 limit = static_cast<quint32>(std::numeric_limits<qint32>::max()) + (isNegative ? 1 : 0);
    quint32 magnitude = 0;
    if (!readDigits(text.sliced(skipSign(text, 0)), limit, magnitude))
        return false;
    number = static_cast<qint32>(isNegative ? -qint64(magnitude) : qint64(magnitude));
    return true;
}

bool VySmilPrivate::readUnsigned(QStringView text, quint32 &number)
{
    number = 0;
    text = text.trimmed();
    return readDigits(text.startsWith(u'+') ? text.sliced(1) : text, std::numeric_limits<quint32>::max(),
                      number);
}

bool VySmilPrivate::readFloat(QStringView text, float &number)
{
    while (!text.isEmpty() && text.front().isSpace())
        text = text.sliced(1);
    number = 0;
    const qsizetype length = floatLength(text);
    if (length == 0)
        return false;
    // An infinity where the number is too large for a double, 0 where it is too small.
    const double value = QLocale::c().toDouble(text.first(length));
    constexpr float greatest = std::numeric_limits<float>::max();
    if (std::fabs(value) > static_cast<double>(greatest)) {
        number = value < 0 ? -greatest : greatest;
        return false;
    }
    number = static_cast<float>(value);
    return length == text.size();
}

bool VySmilPrivate::readFraction(QStringView text, float &fraction)
{
    const qsizetype percent = text.indexOf(u'%');
    if (percent < 0)
        return false;
    const bool isRead = readFloat(text.first(percent), fraction);
    fraction /= 100;
    return isRead;
}
