// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelempar.h>

using namespace VySmilPrivate;

VySmilElemPar::VySmilElemPar() = default;

VySmilElemPar::~VySmilElemPar() = default;

QString VySmilElemPar::getElemType() const
{
    return nameOf(Elem::Par);
}

bool VySmilElemPar::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return takes(Elem::Par, name, version);
}
