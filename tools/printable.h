// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_PRINTABLE_H
#define VYSMIL_TOOLS_PRINTABLE_H

#include <QString>

/// A text that a stranger wrote, as one line that a terminal shows and does not obey: control characters but
/// the tab, line separators, what controls the direction of writing, and lone surrogates as "\n", "\x1b" or
/// "\u202e".
QString printable(QStringView text);

/// The same JSON text with such characters as JSON's escapes.
QString printableJson(QStringView json);

/// The same XML text with such characters, but for line ends, as references. They stand in values alone.
QString printableXml(QStringView xml);

#endif
