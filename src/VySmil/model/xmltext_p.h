// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_XMLTEXT_P_H
#define VYSMIL_XMLTEXT_P_H

#include <QString>

namespace VySmilPrivate {

/// Appends \a value to \a out so that it can stand between double quotes in XML 1.0: what would end the value
/// or be read differently as a reference, what no document can carry as U+FFFD.
void appendAttributeValue(QString &out, QStringView value);

} // namespace VySmilPrivate

#endif
