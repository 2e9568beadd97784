// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/typedattribute_p.h>
#include <VySmil/model/vysmilattrtiming.h>

using namespace VySmilPrivate;

VySmilAttrTiming::VySmilAttrTiming(VySmilElemBase *elem) noexcept
{
    setRefElem(elem);
}

VySmilAttrTiming::~VySmilAttrTiming() = default;

bool VySmilAttrTiming::isValidAttr(const QString &name, VySmil::SMIL_VERSION) const noexcept
{
    const Attr attr = attrOf(name);
    return attr == Attr::Begin || attr == Attr::End || attr == Attr::Dur;
}

VySmil::VyTime VySmilAttrTiming::getBegin() const
{
    return typedAttribute<VySmil::VyTime>(*this, Attr::Begin);
}

void VySmilAttrTiming::setBegin(const VySmil::VyTime &time)
{
    setTypedAttribute(*this, Attr::Begin, time);
}

VySmil::VyTime VySmilAttrTiming::getEnd() const
{
    return typedAttribute<VySmil::VyTime>(*this, Attr::End);
}

void VySmilAttrTiming::setEnd(const VySmil::VyTime &time)
{
    setTypedAttribute(*this, Attr::End, time);
}

VySmil::VyTime VySmilAttrTiming::getDur() const
{
    return typedAttribute<VySmil::VyTime>(*this, Attr::Dur);
}

void VySmilAttrTiming::setDur(const VySmil::VyTime &time)
{
    setTypedAttribute(*this, Attr::Dur, time);
}
