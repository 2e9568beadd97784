// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/compose_references_p.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

// Makes texts that are unlike any location, name and id of the other parts, in any letter case.
class PartNamer
{
public:
    explicit PartNamer(QList<VySmilPart> &parts) : m_parts(parts)
    {
        for (const VySmilPart &part : std::as_const(parts))
            count(part, 1);
    }

    void name(int part);

private:
    void count(const VySmilPart &part, int number);
    QString unique(const QString &wanted);

    QList<VySmilPart> &m_parts;
    QHash<QString, int> m_taken;   // how often a text stands in the list, case folded
    QHash<QString, int> m_numbers; // the last that was put behind a text
};

QString inNameCharacters(QString text)
{
    const auto isKept = [](QChar c) {
        return c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'.' || c == u'-' || c == u'_');
    };
    std::replace_if(
        text.begin(), text.end(), [&isKept](QChar c) { return !isKept(c); }, u'_');
    return text;
}

void PartNamer::count(const VySmilPart &part, int number)
{
    for (const QString &text : {part.contentId, part.contentLocation, part.name}) {
        if (!text.isEmpty())
            m_taken[VySmilPrivate::withoutBrackets(text).toString().toCaseFolded()] += number;
    }
}

void PartNamer::name(int part)
{
    VySmilPart &named = m_parts[part];
    QString *const fields[] = {&named.contentId, &named.contentLocation};
    const auto isBlank = [](const QString *field) { return field->trimmed().isEmpty(); };
    if (std::none_of(std::begin(fields), std::end(fields), isBlank))
        return;
    QString wanted = named.name.trimmed();
    if (wanted.isEmpty())
        wanted = named.contentLocation.trimmed();
    if (wanted.isEmpty())
        wanted = QStringLiteral("part%1").arg(part + 1);
    count(named, -1);
    const QString text = unique(inNameCharacters(wanted));
    for (QString *field : fields) {
        if (isBlank(field))
            *field = text;
    }
    count(named, 1);
}

QString PartNamer::unique(const QString &wanted)
{
    const qsizetype dot = wanted.lastIndexOf(u'.');
    const qsizetype stem = dot < 0 ? wanted.size() : dot;
    const QString folded = wanted.toCaseFolded();
    if (m_taken.value(folded) == 0)
        return wanted;
    int &number = m_numbers[folded];
    number = std::max(number, 1);
    QString candidate;
    do {
        candidate = wanted.left(stem) + u'-' + QString::number(++number) + wanted.mid(stem);
    } while (m_taken.value(candidate.toCaseFolded()) > 0);
    return candidate;
}

} // namespace

void VySmilPart::nameAll(QList<VySmilPart> &parts)
{
    std::vector<int> unnamed;
    {
        const VySmilPrivate::References references(parts);
        for (int i = 0; i < parts.size(); ++i) {
            const VySmilPart &part = parts.at(i);
            const QString id = VySmilPrivate::withoutBrackets(part.contentId).toString();
            if (!part.isSmil() && !references.isGood(part.contentLocation.trimmed(), i) &&
                !references.isGood(QStringLiteral("cid:") + id, i))
                unnamed.push_back(i);
        }
    }
    if (unnamed.empty())
        return;
    PartNamer namer(parts);
    for (const int part : unnamed)
        namer.name(part);
}
