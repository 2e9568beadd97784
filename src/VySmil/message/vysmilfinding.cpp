// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/vysmilfinding.h>

QString VySmilFinding::toString() const
{
    return path + QStringLiteral(": ") + (attribute.isEmpty() ? QString() : attribute + u' ') + message;
}
