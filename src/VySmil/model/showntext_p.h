// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOWNTEXT_P_H
#define VYSMIL_SHOWNTEXT_P_H

#include <QString>

namespace VySmilPrivate {

/// Appends what a stranger wrote as it is told to a reader: its first characters, up to \a limit, and U+FFFD
/// for each that would break the line or turn it around, or is none.
void appendShown(QString &line, QStringView text, int limit = 32);

} // namespace VySmilPrivate

#endif
