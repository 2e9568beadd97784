// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilattrcommon.h>

bool VySmilAttrCommon::isValidAttr(const QString &name, VySmil::SMIL_VERSION) const
{
    return name == QLatin1String("id");
}

QString VySmilAttrCommon::getId() const
{
    return getAttribute(QStringLiteral("id"));
}

void VySmilAttrCommon::setId(const QString &id)
{
    setAttribute(QStringLiteral("id"), id);
}
