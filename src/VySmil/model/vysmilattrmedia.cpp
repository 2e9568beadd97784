// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilattrmedia.h>

using namespace VySmilPrivate;

VySmilAttrMedia::VySmilAttrMedia(VySmilElemBase *elem) noexcept
{
    setRefElem(elem);
}

VySmilAttrMedia::~VySmilAttrMedia() = default;

bool VySmilAttrMedia::isValidAttr(const QString &name, VySmil::SMIL_VERSION) const noexcept
{
    return name == nameOf(Attr::Src);
}

QString VySmilAttrMedia::getSrc() const
{
    return getAttribute(nameOf(Attr::Src));
}

void VySmilAttrMedia::setSrc(const QString &src)
{
    setAttribute(nameOf(Attr::Src), src);
}
