// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemmediaobj.h>
#include <VySmil/model/vysmilelemmediaobjaudio.h>
#include <VySmil/model/vysmilelemmediaobjimg.h>
#include <VySmil/model/vysmilelemmediaobjref.h>
#include <VySmil/model/vysmilelemmediaobjtext.h>
#include <VySmil/model/vysmilelemmediaobjvideo.h>

bool VySmilElemMediaObj::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return VySmilPrivate::isKnownAttr(name, version, {u"src", u"begin", u"end", u"dur", u"alt", u"region"});
}

bool VySmilElemMediaObjAudio::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return VySmilPrivate::isKnownAttr(name, version, {u"src", u"begin", u"end", u"dur", u"alt"});
}

QString VySmilElemMediaObjImg::getElemType() const
{
    return QStringLiteral("img");
}

QString VySmilElemMediaObjText::getElemType() const
{
    return QStringLiteral("text");
}

QString VySmilElemMediaObjAudio::getElemType() const
{
    return QStringLiteral("audio");
}

QString VySmilElemMediaObjVideo::getElemType() const
{
    return QStringLiteral("video");
}

QString VySmilElemMediaObjRef::getElemType() const
{
    return QStringLiteral("ref");
}

QString VySmilElemMediaObj::getRegion() const
{
    return getAttribute(QStringLiteral("region"));
}

void VySmilElemMediaObj::setRegion(const QString &region)
{
    setAttribute(QStringLiteral("region"), region);
}

QString VySmilElemMediaObj::getAlt() const
{
    return getAttribute(QStringLiteral("alt"));
}

void VySmilElemMediaObj::setAlt(const QString &alt)
{
    setAttribute(QStringLiteral("alt"), alt);
}
