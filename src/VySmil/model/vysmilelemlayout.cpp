// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilelemlayout.h>

QString VySmilElemLayout::getElemType() const
{
    return QStringLiteral("layout");
}

bool VySmilElemLayout::isValidAttr(const QString &, VySmil::SMIL_VERSION) const
{
    return false;
}
