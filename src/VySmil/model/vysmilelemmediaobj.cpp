// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelemmediaobj.h>
#include <VySmil/model/vysmilelemmediaobjaudio.h>
#include <VySmil/model/vysmilelemmediaobjimg.h>
#include <VySmil/model/vysmilelemmediaobjref.h>
#include <VySmil/model/vysmilelemmediaobjtext.h>
#include <VySmil/model/vysmilelemmediaobjvideo.h>

using namespace VySmilPrivate;

VySmilElemMediaObj::VySmilElemMediaObj() = default;

VySmilElemMediaObj::~VySmilElemMediaObj() = default;

VySmilElemMediaObjImg::VySmilElemMediaObjImg() = default;

VySmilElemMediaObjImg::~VySmilElemMediaObjImg() = default;

VySmilElemMediaObjText::VySmilElemMediaObjText() = default;

VySmilElemMediaObjText::~VySmilElemMediaObjText() = default;

VySmilElemMediaObjAudio::VySmilElemMediaObjAudio() = default;

VySmilElemMediaObjAudio::~VySmilElemMediaObjAudio() = default;

VySmilElemMediaObjVideo::VySmilElemMediaObjVideo() = default;

VySmilElemMediaObjVideo::~VySmilElemMediaObjVideo() = default;

VySmilElemMediaObjRef::VySmilElemMediaObjRef() = default;

VySmilElemMediaObjRef::~VySmilElemMediaObjRef() = default;

bool VySmilElemMediaObj::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return takes(Elem::Ref, name, version);
}

bool VySmilElemMediaObjAudio::isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const
{
    return takes(Elem::Audio, name, version);
}

QString VySmilElemMediaObjImg::getElemType() const
{
    return nameOf(Elem::Img);
}

QString VySmilElemMediaObjText::getElemType() const
{
    return nameOf(Elem::Text);
}

QString VySmilElemMediaObjAudio::getElemType() const
{
    return nameOf(Elem::Audio);
}

QString VySmilElemMediaObjVideo::getElemType() const
{
    return nameOf(Elem::Video);
}

QString VySmilElemMediaObjRef::getElemType() const
{
    return nameOf(Elem::Ref);
}

QString VySmilElemMediaObj::getRegion() const
{
    return getAttribute(nameOf(Attr::Region));
}

void VySmilElemMediaObj::setRegion(const QString &region)
{
    setAttribute(nameOf(Attr::Region), region);
}

QString VySmilElemMediaObj::getAlt() const
{
    return getAttribute(nameOf(Attr::Alt));
}

void VySmilElemMediaObj::setAlt(const QString &alt)
{
    setAttribute(nameOf(Attr::Alt), alt);
}
