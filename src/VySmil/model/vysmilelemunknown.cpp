// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilelemunknown.h>

QString VySmilElemUnknown::getElemType() const
{
    return elemType;
}

bool VySmilElemUnknown::isValidAttr(const QString &, VySmil::SMIL_VERSION) const
{
    return true;
}
