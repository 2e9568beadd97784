// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilelemunknown.h>

VySmilElemUnknown::VySmilElemUnknown()
{
    elemType = QStringLiteral("");
}

VySmilElemUnknown::VySmilElemUnknown(const VySmilElemUnknown &other) = default;

VySmilElemUnknown::~VySmilElemUnknown() = default;

QString VySmilElemUnknown::getElemType() const
{
    return elemType;
}

bool VySmilElemUnknown::isValidAttr(const QString &, VySmil::SMIL_VERSION) const
{
    return true;
}
