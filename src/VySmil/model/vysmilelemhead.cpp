// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemhead.h>

using namespace VySmilPrivate;

VySmilElemHead::VySmilElemHead() = default;

VySmilElemHead::~VySmilElemHead() = default;

QString VySmilElemHead::getElemType() const
{
    return nameOf(Elem::Head);
}

bool VySmilElemHead::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return takes(Elem::Head, name, version);
}
