// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/typedattribute_p.h>
#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemrootlayout.h>

QString VySmilElemRootLayout::getElemType() const
{
    return QStringLiteral("root-layout");
}

bool VySmilElemRootLayout::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return VySmilPrivate::isKnownAttr(name, version, {u"width", u"height"});
}

VySmil::VyLength VySmilElemRootLayout::getWidth() const
{
    return VySmilPrivate::typedAttribute<VySmil::VyLength>(*this, QStringLiteral("width"));
}

void VySmilElemRootLayout::setWidth(const VySmil::VyLength &length)
{
    VySmilPrivate::setTypedAttribute(*this, QStringLiteral("width"), length);
}

VySmil::VyLength VySmilElemRootLayout::getHeight() const
{
    return VySmilPrivate::typedAttribute<VySmil::VyLength>(*this, QStringLiteral("height"));
}

void VySmilElemRootLayout::setHeight(const VySmil::VyLength &length)
{
    VySmilPrivate::setTypedAttribute(*this, QStringLiteral("height"), length);
}
