// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilattrcommon.h>

using namespace VySmilPrivate;

VySmilAttrCommon::VySmilAttrCommon(VySmilElemBase *elem) noexcept
{
    setRefElem(elem);
}

VySmilAttrCommon::~VySmilAttrCommon() = default;

bool VySmilAttrCommon::isValidAttr(const QString &name, VySmil::SMIL_VERSION) const noexcept
{
    return name == nameOf(Attr::Id);
}

QString VySmilAttrCommon::getId() const
{
    return getAttribute(nameOf(Attr::Id));
}

void VySmilAttrCommon::setId(const QString &id)
{
    setAttribute(nameOf(Attr::Id), id);
}
