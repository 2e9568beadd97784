// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/typedattribute_p.h>
#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemregion.h>

using namespace VySmilPrivate;

VySmilElemRegion::VySmilElemRegion() = default;

VySmilElemRegion::~VySmilElemRegion() = default;

QString VySmilElemRegion::getElemType() const
{
    return nameOf(Elem::Region);
}

bool VySmilElemRegion::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return takes(Elem::Region, name, version);
}

VySmil::VyLength VySmilElemRegion::getWidth() const
{
    return typedAttribute<VySmil::VyLength>(*this, Attr::Width);
}

void VySmilElemRegion::setWidth(const VySmil::VyLength &length)
{
    setTypedAttribute(*this, Attr::Width, length);
}

VySmil::VyLength VySmilElemRegion::getHeight() const
{
    return typedAttribute<VySmil::VyLength>(*this, Attr::Height);
}

void VySmilElemRegion::setHeight(const VySmil::VyLength &length)
{
    setTypedAttribute(*this, Attr::Height, length);
}

VySmil::VyLength VySmilElemRegion::getTop() const
{
    return typedAttribute<VySmil::VyLength>(*this, Attr::Top);
}

void VySmilElemRegion::setTop(const VySmil::VyLength &length)
{
    setTypedAttribute(*this, Attr::Top, length);
}

VySmil::VyLength VySmilElemRegion::getLeft() const
{
    return typedAttribute<VySmil::VyLength>(*this, Attr::Left);
}

void VySmilElemRegion::setLeft(const VySmil::VyLength &length)
{
    setTypedAttribute(*this, Attr::Left, length);
}

QString VySmilElemRegion::getFit() const
{
    return getAttribute(nameOf(Attr::Fit));
}

void VySmilElemRegion::setFit(const QString &fit)
{
    setAttribute(nameOf(Attr::Fit), fit);
}
