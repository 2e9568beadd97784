// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/parser/textcursor_p.h>
#include <VySmil/parser/vysmiltext.h>

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

namespace {

using VySmilPrivate::isBlank;

constexpr QByteArrayView utf8Mark = "\xEF\xBB\xBF";
constexpr char32_t byteOrderMark = 0xfeff;

// An encoding whose units are wider than a byte.
struct WideEncoding
{
    QStringConverter::Encoding encoding;
    int unitSize;
    bool isBigEndian;
};

// What begins as UTF-32 could be UTF-16 with a NUL behind its first character.
constexpr WideEncoding wideEncodings[] = {{QStringConverter::Utf32LE, 4, false},
                                          {QStringConverter::Utf32BE, 4, true},
                                          {QStringConverter::Utf16LE, 2, false},
                                          {QStringConverter::Utf16BE, 2, true}};

// The unit at a position; NUL if the bytes end before its end.
char32_t unitAt(QByteArrayView bytes, qsizetype position, const WideEncoding &wide)
{
    if (bytes.size() - position < wide.unitSize)
        return 0;
    char32_t unit = 0;
    for (int i = 0; i < wide.unitSize; ++i)
        unit = (unit << 8) |
               static_cast<uchar>(bytes[position + (wide.isBigEndian ? i : wide.unitSize - 1 - i)]);
    return unit;
}

bool beginsWithTag(QByteArrayView bytes, const WideEncoding &wide)
{
    qsizetype position = 0;
    while (isBlank(unitAt(bytes, position, wide)))
        position += wide.unitSize;
    return unitAt(bytes, position, wide) == U'<';
}

// Bytes that begin with "<", and whose next is no NUL, are of no wide encoding, whatever a label says.
bool beginsWithNarrowTag(QByteArrayView bytes)
{
    const auto *const first = std::find_if_not(bytes.begin(), bytes.end(), isBlank);
    return first != bytes.end() && *first == '<' && (first + 1 == bytes.end() || first[1] != '\0');
}

int unitSizeOf(const QStringDecoder &decoder)
{
    const QByteArrayView name(decoder.name());
    return name.startsWith("UTF-32") ? 4 : name.startsWith("UTF-16") ? 2 : 1;
}

// For the name of a character set; invalid for one that tells nothing.
QStringDecoder decoderOf(const QByteArray &name)
{
    // ICU takes more than names: an empty text, options, paths.
    static const QRegularExpression form(QStringLiteral("^[A-Za-z0-9][A-Za-z0-9.:_+-]*$"));
    if (!form.match(QString::fromLatin1(name)).hasMatch())
        return {};
    // Names are compared as Qt compares them.
    const QByteArray key = name.toLower().replace('-', "").replace('_', "");
    if (key == "locale" || key == "system")
        return {};
    if (key == "ucs2" || key == "iso10646ucs2")
        return QStringDecoder(QStringConverter::Utf16);
    QStringDecoder decoder(name.constData());
    const QByteArrayView known(decoder.name());
    // What is said to be ASCII mostly is not.
    if (key == "ascii" || known == "US-ASCII")
        return {};
    // Under its other names UTF-8 is read by ICU, which does not tell of errors.
    if (known == "UTF-8")
        return QStringDecoder(QStringConverter::Utf8);
    return decoder;
}

// A parameter of a content type without its quotes.
QByteArray unquoted(const QByteArray &parameter)
{
    const QByteArray trimmed = parameter.trimmed();
    const bool isQuoted = trimmed.size() > 1 && trimmed.front() == trimmed.back() &&
                          (trimmed.front() == '"' || trimmed.front() == '\'');
    return isQuoted ? trimmed.sliced(1, trimmed.size() - 2).trimmed() : trimmed;
}

// What the XML declaration names; empty if it names nothing.
QByteArray declaredEncoding(const QByteArray &bytes)
{
    static const QRegularExpression declaration(QStringLiteral(
        "^[ \t\r\n]*<\\?xml(?=[ \t\r\n])[^>]*?[ \t\r\n]encoding[ \t\r\n]*=[ \t\r\n]*([\"'])([^\"'>]*)\\1"));
    const QString text = QString::fromLatin1(bytes.left(bytes.indexOf('>')));
    return declaration.match(text).captured(2).trimmed().toLatin1();
}

QStringDecoder decoderFor(const QByteArray &bytes, const QByteArray &charset)
{
    if (bytes.startsWith(utf8Mark))
        return QStringDecoder(QStringConverter::Utf8);
    for (const WideEncoding &wide : wideEncodings) {
        if (unitAt(bytes, 0, wide) == byteOrderMark)
            return QStringDecoder(wide.encoding);
    }
    for (const WideEncoding &wide : wideEncodings) {
        if (beginsWithTag(bytes, wide))
            return QStringDecoder(wide.encoding);
    }
    for (const QByteArray &label : {unquoted(charset), declaredEncoding(bytes)}) {
        QStringDecoder decoder = decoderOf(label);
        if (decoder.isValid() && (unitSizeOf(decoder) == 1 || !beginsWithNarrowTag(bytes)))
            return decoder;
    }
    return QStringDecoder(QStringConverter::Utf8);
}

// A part of a wide NUL at the very end is one too.
QByteArrayView withoutNulsAtEnd(QByteArrayView bytes, int unitSize)
{
    const auto isNul = [](char byte) { return byte == '\0'; };
    const qsizetype used = std::find_if_not(bytes.rbegin(), bytes.rend(), isNul).base() - bytes.begin();
    // Some of the NULs belong to the last character.
    const qsizetype size = (used + unitSize - 1) / unitSize * unitSize;
    return bytes.first(std::min(size, bytes.size()));
}

// Every byte is a character.
QString decodeWestern(QByteArrayView bytes)
{
    QStringDecoder decoder("windows-1252");
    return decoder.isValid() ? decoder(bytes) : QString::fromLatin1(bytes);
}

} // namespace

QString VySmilText::decode(const QByteArray &bytes, const QByteArray &charset)
{
    QStringDecoder decoder = decoderFor(bytes, charset);
    QByteArrayView content = withoutNulsAtEnd(bytes, unitSizeOf(decoder));
    QString text = decoder(content);
    if (decoder.hasError() && qstrcmp(decoder.name(), "UTF-8") == 0) {
        if (content.startsWith(utf8Mark))
            content = content.sliced(utf8Mark.size());
        return decodeWestern(content);
    }
    if (!text.isEmpty() && text.back().isHighSurrogate())
        text.chop(1);
    return text;
}
