// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemmeta.h>

using namespace VySmilPrivate;

VySmilElemMeta::VySmilElemMeta() = default;

VySmilElemMeta::VySmilElemMeta(const VySmilElemMeta &other) = default;

VySmilElemMeta::~VySmilElemMeta() = default;

QString VySmilElemMeta::getElemType() const
{
    return nameOf(Elem::Meta);
}

bool VySmilElemMeta::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return takes(Elem::Meta, name, version);
}

QString VySmilElemMeta::getName() const
{
    return getAttribute(nameOf(Attr::Name));
}

void VySmilElemMeta::setName(const QString &name)
{
    setAttribute(nameOf(Attr::Name), name);
}

QString VySmilElemMeta::getConent() const
{
    return getAttribute(nameOf(Attr::Content));
}

void VySmilElemMeta::setContent(const QString &content)
{
    setAttribute(nameOf(Attr::Content), content);
}
