// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/mediumkind_p.h>
#include <VySmil/message/partindex_p.h>

#include <QStringConverter>
#include <QUrl>

#include <algorithm>

namespace {

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

// Takes %XX for bytes of UTF-8. A "%" without two digits stays, and so does all of a text that would be no
// UTF-8; neither is what Qt's decoding does.
QString percentDecoded(const QString &text)
{
    if (!text.contains(u'%'))
        return text;
    const QByteArray encoded = text.toUtf8();
    QByteArray bytes;
    for (qsizetype i = 0; i < encoded.size(); ++i) {
        const bool isEscape = encoded[i] == '%' && i + 2 < encoded.size() && hexDigit(encoded[i + 1]) >= 0 &&
                              hexDigit(encoded[i + 2]) >= 0;
        if (isEscape) {
            bytes += static_cast<char>(hexDigit(encoded[i + 1]) * 16 + hexDigit(encoded[i + 2]));
            i += 2;
        } else {
            bytes += encoded[i];
        }
    }
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    const QString decoded = decoder(bytes);
    return decoder.hasError() ? text : decoded;
}

// A text as it is compared in a round.
QString comparable(const QString &text, int round)
{
    QString result = text.trimmed();
    if (round > 0) {
        result = percentDecoded(result);
        if (result.startsWith(u"./"))
            result.remove(0, 2);
    }
    return round > 1 ? result.toCaseFolded() : result;
}

QString plainId(const QString &text)
{
    return VySmilPrivate::withoutBrackets(text).toString();
}

} // namespace

namespace VySmilPrivate {

PartIndex::Match PartIndex::match(const QString &src, bool mustSeeAll)
{
    if (parts.isEmpty())
        return {};
    QString key = src.trimmed();
    const bool isCid = key.startsWith(QLatin1String("cid:"), Qt::CaseInsensitive);
    if (isCid)
        key.remove(0, 4);
    for (int round = 0; round < rounds; ++round) {
        const auto lookUp = [&](Fields fields) {
            const QString text = fields == IDS ? plainId(key) : key;
            return table(round, fields).value(comparable(text, round));
        };
        const Entry preferred = lookUp(isCid ? IDS : LOCATIONS_AND_NAMES);
        if (preferred.first >= 0 && !mustSeeAll)
            return {preferred.first, false};
        const Entry other = lookUp(isCid ? LOCATIONS_AND_NAMES : IDS);
        const int part = preferred.first >= 0 ? preferred.first : other.first;
        if (part >= 0)
            return {part, preferred.isAlone && other.isAlone && (other.first < 0 || other.first == part)};
    }
    return {};
}

const PartIndex::Table &PartIndex::table(int round, Fields fields)
{
    std::optional<Table> &made = tables[round][fields];
    if (made)
        return *made;
    made.emplace();
    made->reserve(parts.size());
    const auto add = [this, round, &made](QString VySmilPart::*field, auto normalized) {
        for (int i = 0; i < parts.size(); ++i) {
            const QString key = comparable(normalized(parts.at(i).*field), round);
            if (key.isEmpty() || isSmilPart(parts.at(i)))
                continue;
            Entry &entry = (*made)[key];
            if (entry.first < 0)
                entry.first = i;
            entry.isAlone = entry.isAlone && entry.first == i;
        }
    };
    const auto asItIs = [](const QString &text) { return text; };
    if (fields == IDS) {
        add(&VySmilPart::contentId, plainId);
    } else {
        add(&VySmilPart::contentLocation, asItIs);
        add(&VySmilPart::name, asItIs);
    }
    return *made;
}

QStringView withoutBrackets(QStringView text)
{
    for (;;) {
        text = text.trimmed();
        if (text.startsWith(u'<'))
            text = text.sliced(1);
        else if (text.endsWith(u'>'))
            text.chop(1);
        else
            return text;
    }
}

bool isAsciiText(QStringView text)
{
    return !text.trimmed().isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c <= u'~'; });
}

QString referenceTo(PartIndex &index, const QList<VySmilPart> &parts, int part)
{
    // The text of the part is decoded too when it is compared.
    const auto inAscii = [](const QString &text) {
        return isAsciiText(text) ? text : QString::fromLatin1(QUrl::toPercentEncoding(percentDecoded(text)));
    };
    const VySmilPart &target = parts.at(part);
    QString location = target.contentLocation.trimmed();
    if (isAsciiText(location) && index.find(location) == part)
        return location;
    const QString id = plainId(target.contentId);
    return id.isEmpty() ? inAscii(location) : QStringLiteral("cid:") + inAscii(id);
}

} // namespace VySmilPrivate
