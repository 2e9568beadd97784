// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemsmil.h>

using namespace VySmilPrivate;

VySmilElemSmil::VySmilElemSmil()
{
    init();
}

VySmilElemSmil::VySmilElemSmil(const VySmilElemSmil &other) : VySmilElemBase(other)
{
    init();
}

VySmilElemSmil::~VySmilElemSmil() = default;

QString VySmilElemSmil::getElemType() const
{
    return nameOf(Elem::Smil);
}

bool VySmilElemSmil::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return takes(Elem::Smil, name, version);
}

void VySmilElemSmil::init() noexcept {}

VySmilElemBase *VySmilElemSmil::getHead() const
{
    return getSubElement(0, nameOf(Elem::Head));
}

VySmilElemBase *VySmilElemSmil::getBody() const
{
    return getSubElement(0, nameOf(Elem::Body));
}
