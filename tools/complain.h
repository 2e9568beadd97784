// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_COMPLAIN_H
#define VYSMIL_TOOLS_COMPLAIN_H

#include <QString>

/// Says a line on standard error, behind the name of the program.
void complain(const QString &line);
/// The same about what lies at \a path.
void complain(const QString &path, const QString &line);

#endif
