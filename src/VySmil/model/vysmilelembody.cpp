// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilelembody.h>

QString VySmilElemBody::getElemType() const
{
    return QStringLiteral("body");
}

bool VySmilElemBody::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    // This element accepts "id" under every version but the one that is known.
    return version != VySmil::SMIL_VER_DEFAULT && commonAttrsProxy.isValidAttr(name, version);
}
