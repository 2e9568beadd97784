// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/typedattribute_p.h>
#include <VySmil/model/vysmilattrtiming.h>

bool VySmilAttrTiming::isValidAttr(const QString &name, VySmil::SMIL_VERSION) const
{
    return name == QLatin1String("begin") || name == QLatin1String("end") || name == QLatin1String("dur");
}

VySmil::VyTime VySmilAttrTiming::getBegin() const
{
    return VySmilPrivate::typedAttribute<VySmil::VyTime>(*this, QStringLiteral("begin"));
}

void VySmilAttrTiming::setBegin(const VySmil::VyTime &time)
{
    VySmilPrivate::setTypedAttribute(*this, QStringLiteral("begin"), time);
}

VySmil::VyTime VySmilAttrTiming::getEnd() const
{
    return VySmilPrivate::typedAttribute<VySmil::VyTime>(*this, QStringLiteral("end"));
}

void VySmilAttrTiming::setEnd(const VySmil::VyTime &time)
{
    VySmilPrivate::setTypedAttribute(*this, QStringLiteral("end"), time);
}

VySmil::VyTime VySmilAttrTiming::getDur() const
{
    return VySmilPrivate::typedAttribute<VySmil::VyTime>(*this, QStringLiteral("dur"));
}

void VySmilAttrTiming::setDur(const VySmil::VyTime &time)
{
    VySmilPrivate::setTypedAttribute(*this, QStringLiteral("dur"), time);
}
