// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilelemlayout.h>

VySmilElemLayout::VySmilElemLayout() = default;

VySmilElemLayout::~VySmilElemLayout() = default;

QString VySmilElemLayout::getElemType() const
{
    return QStringLiteral("layout");
}

bool VySmilElemLayout::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    Q_UNUSED(name)
    Q_UNUSED(version)
    return false;
}
