// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilattrtiming.h>

VySmilAttrTiming::VySmilAttrTiming(VySmilElemBase *elem)
{
    setRefElem(elem);
}

bool VySmilAttrTiming::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    Q_UNUSED(version)
    return name == QLatin1String("begin") || name == QLatin1String("end") || name == QLatin1String("dur");
}
