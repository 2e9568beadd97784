// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemmeta.h>

QString VySmilElemMeta::getElemType() const
{
    return QStringLiteral("meta");
}

bool VySmilElemMeta::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return VySmilPrivate::isKnownAttr(name, version, {u"content", u"name"});
}

QString VySmilElemMeta::getName() const
{
    return getAttribute(QStringLiteral("name"));
}

void VySmilElemMeta::setName(const QString &name)
{
    setAttribute(QStringLiteral("name"), name);
}

QString VySmilElemMeta::getConent() const
{
    return getAttribute(QStringLiteral("content"));
}

void VySmilElemMeta::setContent(const QString &content)
{
    setAttribute(QStringLiteral("content"), content);
}
