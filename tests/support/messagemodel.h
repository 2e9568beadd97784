// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_MESSAGEMODEL_H
#define VYSMIL_TESTS_MESSAGEMODEL_H

#include <VySmil/VySmil>

#include <QRegularExpression>
#include <QStringDecoder>

// Which parts a text names, found once more in the plainest way and at any cost.

inline QString decodedName(const QString &text)
{
    static const QRegularExpression otherPercent("%(?![0-9A-Fa-f]{2})");
    const QByteArray escaped = QString(text).replace(otherPercent, "%25").toUtf8();
    QStringDecoder decoder(QStringConverter::Utf8,
                           QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    const QString read = decoder(QByteArray::fromPercentEncoding(escaped));
    return decoder.hasError() ? text : read;
}

inline QString nameInRound(const QString &text, int round)
{
    QString name = text.trimmed();
    if (round > 0) {
        name = decodedName(name);
        if (name.startsWith("./"))
            name.remove(0, 2);
    }
    return round > 1 ? name.toCaseFolded() : name;
}

inline QString withoutBrackets(const QString &text)
{
    static const QRegularExpression brackets("^[<\\s]+|[>\\s]+\\z",
                                             QRegularExpression::UseUnicodePropertiesOption);
    return QString(text).remove(brackets);
}

inline QString fieldOf(const VySmilPart &part, int field)
{
    return field == 0 ? withoutBrackets(part.contentId) : field == 1 ? part.contentLocation : part.name;
}

/// The parts that fit \a src in the round and field that hit.
inline QList<int> partsThatFit(const QString &src, const QList<VySmilPart> &parts)
{
    const bool isCid = src.trimmed().startsWith("cid:", Qt::CaseInsensitive);
    const QString sought = isCid ? src.trimmed().mid(4) : src;
    QList<int> hits;
    for (int round = 0; round < 3; ++round) {
        for (const int field : isCid ? QList<int>{0, 1, 2} : QList<int>{1, 2, 0}) {
            const QString name = nameInRound(field == 0 ? withoutBrackets(sought) : sought, round);
            for (int i = 0; i < parts.size(); ++i) {
                if (!parts[i].isSmil() && !name.isEmpty() &&
                    name == nameInRound(fieldOf(parts[i], field), round))
                    hits << i;
            }
            if (!hits.isEmpty())
                return hits;
        }
    }
    return hits;
}

/// Whether \a src names the one part \a part, or any where there are none, in printable ASCII.
inline bool isGoodReference(const QString &src, int part, const QList<VySmilPart> &parts)
{
    static const QRegularExpression printable("^[!-~]+\\z");
    return src.contains(printable) && (parts.isEmpty() || partsThatFit(src, parts) == QList<int>{part});
}

#endif
