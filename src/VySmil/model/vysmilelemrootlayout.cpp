// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemrootlayout.h>

VySmilElemRootLayout::VySmilElemRootLayout() = default;

VySmilElemRootLayout::~VySmilElemRootLayout() = default;

QString VySmilElemRootLayout::getElemType() const
{
    return QStringLiteral("root-layout");
}

bool VySmilElemRootLayout::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return VySmilPrivate::isKnownAttr(name, version, {u"width", u"height"});
}
