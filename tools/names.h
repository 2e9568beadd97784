// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_NAMES_H
#define VYSMIL_TOOLS_NAMES_H

#include <VySmil/message/vysmilmedium.h>

#include <QMetaEnum>
#include <QStringList>

/// The name of an enumerator without its first word, in lower case: "image" for MEDIUM_IMAGE.
template <typename Enum>
QString shortName(Enum value)
{
    const QString name = QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(static_cast<int>(value)));
    return name.mid(name.indexOf(u'_') + 1).toLower();
}

/// Those of what was guessed.
inline QStringList shortNames(VySmilMedium::GUESSES guesses)
{
    QStringList names;
    const auto flags = QMetaEnum::fromType<VySmilMedium::GUESS_FLAG>();
    for (int i = 0; i < flags.keyCount(); ++i) {
        const auto flag = static_cast<VySmilMedium::GUESS_FLAG>(flags.value(i));
        if (guesses.testFlag(flag))
            names << shortName(flag);
    }
    return names;
}

#endif
