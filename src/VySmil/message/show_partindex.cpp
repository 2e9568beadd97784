// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_partindex_p.h>

#include <QStringConverter>

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
// UTF-8 or has half a surrogate pair; neither is what Qt's decoding does.
QString percentDecoded(const QString &text)
{
    if (!text.contains(u'%') || !text.isValidUtf16())
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

// Costs nothing where there are none.
QString idWithoutBrackets(const QString &text)
{
    const QStringView id = VySmilPrivate::withoutBrackets(text);
    return id.size() == text.size() ? text : id.toString();
}

// A trimmed text as it is compared in a round.
QString comparable(const QString &text, int round)
{
    if (round == 0)
        return text;
    QString result = percentDecoded(text);
    if (result.startsWith(u"./"))
        result.remove(0, 2);
    return round > 1 ? result.toCaseFolded() : result;
}

} // namespace

namespace VySmilPrivate {

PartIndex::Match PartIndex::find(const QString &src) const
{
    if (m_parts.isEmpty())
        return {};
    QString key = src.trimmed();
    const bool isCid = key.startsWith(QLatin1String("cid:"), Qt::CaseInsensitive);
    if (isCid)
        key = key.sliced(4).trimmed();
    const QString id = idWithoutBrackets(key);
    static constexpr Field orders[2][3] = {{Field::Location, Field::Name, Field::Id},
                                           {Field::Id, Field::Location, Field::Name}};
    for (int round = 0; round < rounds; ++round) {
        for (const Field field : orders[isCid ? 1 : 0]) {
            const Match match = table(round, field).value(comparable(field == Field::Id ? id : key, round));
            if (match.part >= 0)
                return match;
        }
    }
    return {};
}

const PartIndex::Table &PartIndex::table(int round, Field field) const
{
    std::optional<Table> &made = m_tables[round][static_cast<int>(field)];
    if (made)
        return *made;
    made.emplace();
    made->reserve(m_parts.size());
    for (int i = 0; i < m_parts.size(); ++i) {
        const VySmilPart &part = m_parts.at(i);
        const QString text = field == Field::Id         ? idWithoutBrackets(part.contentId)
                             : field == Field::Location ? part.contentLocation.trimmed()
                                                        : part.name.trimmed();
        const QString key = comparable(text, round);
        if (key.isEmpty() || part.isSmil())
            continue;
        Match &match = (*made)[key];
        match = match.part < 0 ? Match{i, true} : Match{match.part, false};
    }
    return *made;
}

QStringView withoutBrackets(QStringView text) noexcept
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

bool isPrintableAscii(QStringView text) noexcept
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'!' && c <= u'~'; });
}

} // namespace VySmilPrivate
