// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilelemsmil.h>

void VySmilElemSmil::init() {}

VySmilElemBase *VySmilElemSmil::getHead() const
{
    return getSubElement(0, QStringLiteral("head"));
}

VySmilElemBase *VySmilElemSmil::getBody() const
{
    return getSubElement(0, QStringLiteral("body"));
}

QString VySmilElemSmil::getElemType() const
{
    return QStringLiteral("smil");
}

bool VySmilElemSmil::isValidAttr(const QString &, VySmil::SMIL_VERSION) const
{
    return false;
}
