// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilelemunknown.h>

VySmilElemUnknown::VySmilElemUnknown()
{
    elemType = QStringLiteral("");
}

VySmilElemUnknown::~VySmilElemUnknown() = default;

QString VySmilElemUnknown::getElemType() const
{
    return elemType;
}

bool VySmilElemUnknown::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    Q_UNUSED(name)
    Q_UNUSED(version)
    return true;
}
