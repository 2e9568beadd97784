// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/compose_references_p.h>
#include <VySmil/message/show_kind_p.h>

namespace {

// What a medium may call the part, the best first; empty ones too.
std::vector<QString> textsFor(const VySmilPart &part)
{
    QString id = VySmilPrivate::withoutBrackets(part.contentId).toString();
    if (!id.isEmpty())
        id.prepend(QLatin1String("cid:"));
    return {part.contentLocation.trimmed(), id, part.name.trimmed()};
}

QString percentEncoded(const QString &text)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    QString encoded;
    for (const char c : text.toUtf8()) {
        const auto byte = static_cast<unsigned char>(c);
        if (c >= '!' && c <= '~')
            encoded += QLatin1Char(c);
        else
            (encoded += u'%').append(QLatin1Char(digits[byte / 16])).append(QLatin1Char(digits[byte % 16]));
    }
    return encoded;
}

} // namespace

namespace VySmilPrivate {

References::References(const QList<VySmilPart> &parts)
    : m_parts(parts), m_index(parts), m_good(static_cast<std::size_t>(parts.size()))
{
}

bool References::isGood(const QString &src, int part) const
{
    return isPrintableAscii(src) && isGood(src, m_index.find(src), part);
}

bool References::isGood(const QString &src, PartIndex::Match match, int part) noexcept
{
    return part >= 0 && match.part == part && match.isAlone && isPrintableAscii(src);
}

QString References::goodFor(int part) const
{
    std::optional<QString> &good = m_good[static_cast<std::size_t>(part)];
    if (good)
        return *good;
    good.emplace();
    for (const QString &text : textsFor(m_parts.at(part))) {
        if (isGood(text, part))
            return *(good = text);
    }
    return QString();
}

QString References::of(int part) const
{
    if (QString good = goodFor(part); !good.isEmpty())
        return good;
    QString finding;
    for (const QString &text : textsFor(m_parts.at(part))) {
        QString encoded = percentEncoded(text);
        const PartIndex::Match match = m_index.find(encoded);
        if (match.part != part)
            continue;
        if (match.isAlone)
            return encoded;
        if (finding.isEmpty())
            finding = encoded;
    }
    return finding;
}

} // namespace VySmilPrivate

VySmilMedium VySmilMedium::ofPart(const QList<VySmilPart> &parts, int part)
{
    VySmilMedium medium;
    if (part < 0 || part >= parts.size())
        return medium;
    medium.kind = VySmilPrivate::kindOfPart(parts.at(part)).value_or(MEDIUM_OTHER);
    medium.part = part;
    medium.src = VySmilPrivate::References(parts).of(part);
    medium.fit = VySmilPrivate::usualFit(medium.kind);
    return medium;
}
