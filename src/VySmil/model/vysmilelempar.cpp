// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelempar.h>

QString VySmilElemPar::getElemType() const
{
    return QStringLiteral("par");
}

bool VySmilElemPar::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return VySmilPrivate::isKnownAttr(name, version, {u"dur"});
}
