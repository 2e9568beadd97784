// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemlayout.h>

using namespace VySmilPrivate;

VySmilElemLayout::VySmilElemLayout() = default;

VySmilElemLayout::VySmilElemLayout(const VySmilElemLayout &other) = default;

VySmilElemLayout::~VySmilElemLayout() = default;

QString VySmilElemLayout::getElemType() const
{
    return nameOf(Elem::Layout);
}

bool VySmilElemLayout::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return takes(Elem::Layout, name, version);
}
