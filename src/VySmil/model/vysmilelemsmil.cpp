// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilelemsmil.h>

VySmilElemSmil::VySmilElemSmil()
{
    init();
}

VySmilElemSmil::VySmilElemSmil(const VySmilElemSmil &other) : VySmilElemBase(other)
{
    init();
}

VySmilElemSmil::~VySmilElemSmil() = default;

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

bool VySmilElemSmil::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    Q_UNUSED(name)
    Q_UNUSED(version)
    return false;
}
