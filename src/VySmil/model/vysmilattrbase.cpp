// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilattrbase.h>
#include <VySmil/model/vysmilelembase.h>

VySmilAttrBase::VySmilAttrBase() noexcept = default;

VySmilAttrBase::~VySmilAttrBase()
{
    refElem = nullptr;
}

QString VySmilAttrBase::getAttribute(const QString &name) const
{
    Q_ASSERT(refElem);
    return refElem->getAttribute(name);
}

void VySmilAttrBase::setAttribute(const QString &name, const QString &value)
{
    Q_ASSERT(refElem);
    refElem->setAttribute(name, value);
}

void VySmilAttrBase::rmAttribute(const QString &name)
{
    Q_ASSERT(refElem);
    refElem->rmAttribute(name);
}
