// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelembody.h>

using namespace VySmilPrivate;

VySmilElemBody::VySmilElemBody() = default;

VySmilElemBody::~VySmilElemBody() = default;

QString VySmilElemBody::getElemType() const
{
    return nameOf(Elem::Body);
}

bool VySmilElemBody::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return takes(Elem::Body, name, version);
}
