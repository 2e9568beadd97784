// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilattrmedia.h>

bool VySmilAttrMedia::isValidAttr(const QString &name, VySmil::SMIL_VERSION) const
{
    return name == QLatin1String("src");
}

QString VySmilAttrMedia::getSrc() const
{
    return getAttribute(QStringLiteral("src"));
}

void VySmilAttrMedia::setSrc(const QString &src)
{
    setAttribute(QStringLiteral("src"), src);
}
