// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_MESSAGEMODEL_H
#define VYSMIL_TESTS_MESSAGEMODEL_H

#include <VySmil/VySmil>

#include <QStringDecoder>

#include <algorithm>

// What the message floor does, done once more in the plainest way and at any cost.

inline QString decodedName(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    QByteArray plain;
    for (int i = 0; i < bytes.size(); ++i) {
        const QByteArray digits = bytes.mid(i + 1, 2);
        if (bytes.at(i) == '%' && digits.size() == 2 &&
            digits.toLower() == QByteArray::fromHex(digits).toHex()) {
            plain += QByteArray::fromHex(digits);
            i += 2;
        } else {
            plain += bytes.at(i);
        }
    }
    QStringDecoder decoder(QStringConverter::Utf8,
                           QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    const QString read = decoder(plain);
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

inline bool startsWithCid(const QString &src)
{
    return src.trimmed().startsWith("cid:", Qt::CaseInsensitive);
}

inline QString withoutBrackets(const QString &text)
{
    QString id = text.trimmed();
    if (id.startsWith(u'<'))
        id.remove(0, 1);
    if (id.endsWith(u'>'))
        id.chop(1);
    return id.trimmed();
}

inline QString fieldOf(const VySmilPart &part, int field)
{
    return field == 0 ? withoutBrackets(part.contentId) : field == 1 ? part.contentLocation : part.name;
}

/// The parts that fit \a src in the round and field that hit.
inline QList<int> partsThatFit(const QString &src, const QList<VySmilPart> &parts)
{
    const QString sought = startsWithCid(src) ? src.trimmed().mid(4) : src;
    for (int round = 0; round < 3; ++round) {
        for (const int field : startsWithCid(src) ? QList<int>{0, 1, 2} : QList<int>{1, 2, 0}) {
            const QString name = nameInRound(field == 0 ? withoutBrackets(sought) : sought, round);
            QList<int> hits;
            for (int i = 0; i < parts.size(); ++i) {
                if (!parts.at(i).isSmil() && !name.isEmpty() &&
                    name == nameInRound(fieldOf(parts.at(i), field), round))
                    hits << i;
            }
            if (!hits.isEmpty())
                return hits;
        }
    }
    return {};
}

inline bool isPrintable(const QString &text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'!' && c <= u'~'; });
}

inline bool isGoodReference(const QString &src, int part, const QList<VySmilPart> &parts)
{
    return isPrintable(src) && partsThatFit(src, parts) == QList<int>{part};
}

/// The kind that the type of a part gives, or -1.
inline int kindOfType(const VySmilPart &part)
{
    const QString type = part.contentType.section(u';', 0, 0).trimmed().toLower();
    if (QStringList{"text/vcard", "text/x-vcard", "text/directory", "text/calendar", "text/x-vcalendar"}
            .contains(type))
        return VySmilMedium::MEDIUM_OTHER;
    return int(QStringList{"image", "text", "audio", "video"}.indexOf(
        type.contains(u'/') ? type.section(u'/', 0, 0) : QString()));
}

/// The sorts of a medium, of which a slide is to have one each, as bits: picture, text, sound.
inline int sortsOf(int kind)
{
    static constexpr int sorts[] = {1, 2, 4, 1 | 4, 0};
    return sorts[kind];
}

inline bool hasMediaOfOneSort(const VySmilSlide &slide)
{
    int sorts = 0;
    for (const VySmilMedium &medium : slide.media) {
        if ((sorts & sortsOf(medium.kind)) != 0)
            return true;
        sorts |= sortsOf(medium.kind);
    }
    return false;
}

#endif
