// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/vysmilfinding.h>
#include <VySmil/model/showntext_p.h>

QString VySmilFinding::toString() const
{
    QString line = path + QStringLiteral(": ");
    if (!attribute.isEmpty()) {
        VySmilPrivate::appendShown(line, attribute);
        line += u' ';
    }
    return line + message;
}

bool VySmilFinding::operator==(const VySmilFinding &other) const noexcept
{
    return rule == other.rule && severity == other.severity && attribute == other.attribute &&
           path == other.path && message == other.message;
}
