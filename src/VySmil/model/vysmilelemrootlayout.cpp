// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/typedattribute_p.h>
#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemrootlayout.h>

using namespace VySmilPrivate;

VySmilElemRootLayout::VySmilElemRootLayout() = default;

VySmilElemRootLayout::VySmilElemRootLayout(const VySmilElemRootLayout &other) = default;

VySmilElemRootLayout::~VySmilElemRootLayout() = default;

QString VySmilElemRootLayout::getElemType() const
{
    return nameOf(Elem::RootLayout);
}

bool VySmilElemRootLayout::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return takes(Elem::RootLayout, name, version);
}

VySmil::VyLength VySmilElemRootLayout::getWidth() const
{
    return typedAttribute<VySmil::VyLength>(*this, Attr::Width);
}

void VySmilElemRootLayout::setWidth(const VySmil::VyLength &length)
{
    setTypedAttribute(*this, Attr::Width, length);
}

VySmil::VyLength VySmilElemRootLayout::getHeight() const
{
    return typedAttribute<VySmil::VyLength>(*this, Attr::Height);
}

void VySmilElemRootLayout::setHeight(const VySmil::VyLength &length)
{
    setTypedAttribute(*this, Attr::Height, length);
}
