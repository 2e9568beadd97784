// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/typedattribute_p.h>
#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemregion.h>

QString VySmilElemRegion::getElemType() const
{
    return QStringLiteral("region");
}

bool VySmilElemRegion::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return VySmilPrivate::isKnownAttr(name, version, {u"left", u"top", u"height", u"width", u"fit", u"id"});
}

VySmil::VyLength VySmilElemRegion::getWidth() const
{
    return VySmilPrivate::typedAttribute<VySmil::VyLength>(*this, QStringLiteral("width"));
}

void VySmilElemRegion::setWidth(const VySmil::VyLength &length)
{
    VySmilPrivate::setTypedAttribute(*this, QStringLiteral("width"), length);
}

VySmil::VyLength VySmilElemRegion::getHeight() const
{
    return VySmilPrivate::typedAttribute<VySmil::VyLength>(*this, QStringLiteral("height"));
}

void VySmilElemRegion::setHeight(const VySmil::VyLength &length)
{
    VySmilPrivate::setTypedAttribute(*this, QStringLiteral("height"), length);
}

VySmil::VyLength VySmilElemRegion::getTop() const
{
    return VySmilPrivate::typedAttribute<VySmil::VyLength>(*this, QStringLiteral("top"));
}

void VySmilElemRegion::setTop(const VySmil::VyLength &length)
{
    VySmilPrivate::setTypedAttribute(*this, QStringLiteral("top"), length);
}

VySmil::VyLength VySmilElemRegion::getLeft() const
{
    return VySmilPrivate::typedAttribute<VySmil::VyLength>(*this, QStringLiteral("left"));
}

void VySmilElemRegion::setLeft(const VySmil::VyLength &length)
{
    VySmilPrivate::setTypedAttribute(*this, QStringLiteral("left"), length);
}

QString VySmilElemRegion::getFit() const
{
    return getAttribute(QStringLiteral("fit"));
}

void VySmilElemRegion::setFit(const QString &fit)
{
    setAttribute(QStringLiteral("fit"), fit);
}
