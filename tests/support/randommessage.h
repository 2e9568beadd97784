// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_RANDOMMESSAGE_H
#define VYSMIL_TESTS_RANDOMMESSAGE_H

#include <QHash>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStringList>

/// Makes messages by chance, as texts (see MessageCase), by a grammar.
class RandomMessage
{
public:
    RandomMessage(quint32 seed, const QString &grammar) : m_random(seed)
    {
        for (const QString &line : grammar.split(u'\n'))
            m_rules[line.section(u'=', 0, 0)] = line.section(u'=', 1);
    }

    /// A message in which one of \a rarity things is odd.
    QString text(quint32 rarity)
    {
        static const QRegularExpression open("[{[]");
        QString text("{message}");
        int steps = 0;
        for (qsizetype at = 0; (at = text.indexOf(open, at)) >= 0; ++steps) {
            const qsizetype end = text.indexOf(text[at] == u'{' ? u'}' : u']', at);
            QString chosen = text.mid(at + 1, end - at - 1);
            if (text[at] == u'{') {
                const QString &rule = m_rules[chosen];
                const bool isOdd = rule.contains("~~~") && m_random.bounded(rarity) == 0;
                const QStringList all = rule.section("~~~", isOdd, isOdd).split(u'~');
                chosen = all[steps > 900 ? 0 : m_random.bounded(int(all.size()))];
            } else if (m_random.bounded(2) == 0) {
                chosen.clear();
            }
            text.replace(at, end - at + 1, chosen.replace(u'^', u'\n'));
        }
        return text;
    }

private:
    QHash<QString, QString> m_rules;
    QRandomGenerator m_random;
};

#endif
