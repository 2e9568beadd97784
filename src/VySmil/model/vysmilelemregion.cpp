// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemregion.h>

VySmilElemRegion::VySmilElemRegion() : commonAttrsProxy(this) {}

VySmilElemRegion::~VySmilElemRegion() = default;

QString VySmilElemRegion::getElemType() const
{
    return QStringLiteral("region");
}

bool VySmilElemRegion::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return VySmilPrivate::isKnownAttr(name, version, {u"left", u"top", u"height", u"width", u"fit", u"id"});
}
