// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/parser/vysmiltextfault.h>

QString VySmilTextFault::toString() const
{
    if (position < 0)
        return message;
    return QStringLiteral("line %1, column %2: ").arg(line).arg(column) + message;
}

bool VySmilTextFault::operator==(const VySmilTextFault &other) const noexcept
{
    return reason == other.reason && position == other.position && line == other.line &&
           column == other.column && message == other.message;
}
