// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelembody.h>
#include <VySmil/model/vysmilelemhead.h>
#include <VySmil/model/vysmilelemlayout.h>
#include <VySmil/model/vysmilelemmediaobjaudio.h>
#include <VySmil/model/vysmilelemmediaobjimg.h>
#include <VySmil/model/vysmilelemmediaobjref.h>
#include <VySmil/model/vysmilelemmediaobjtext.h>
#include <VySmil/model/vysmilelemmediaobjvideo.h>
#include <VySmil/model/vysmilelemmeta.h>
#include <VySmil/model/vysmilelempar.h>
#include <VySmil/model/vysmilelemregion.h>
#include <VySmil/model/vysmilelemrootlayout.h>
#include <VySmil/model/vysmilelemsmil.h>
#include <VySmil/model/vysmilelemunknown.h>

#include <new>
#include <typeinfo>

namespace {

template <class Elem>
VySmilElemBase *make()
{
    return new (std::nothrow) Elem;
}

template <class Elem>
bool isExactly(const VySmilElemBase &elem)
{
    return typeid(elem) == typeid(Elem);
}

struct ElementClass
{
    QStringView name;
    VySmilElemBase *(*make)();
    bool (*isClassOf)(const VySmilElemBase &elem);
};

template <class Elem>
constexpr ElementClass elementClass(QStringView name)
{
    return {name, make<Elem>, isExactly<Elem>};
}

// The frequent names of a message come first.
constexpr ElementClass elementClasses[] = {
    elementClass<VySmilElemPar>(u"par"),
    elementClass<VySmilElemMediaObjImg>(u"img"),
    elementClass<VySmilElemMediaObjText>(u"text"),
    elementClass<VySmilElemMediaObjAudio>(u"audio"),
    elementClass<VySmilElemMediaObjVideo>(u"video"),
    elementClass<VySmilElemMediaObjRef>(u"ref"),
    elementClass<VySmilElemRegion>(u"region"),
    elementClass<VySmilElemMeta>(u"meta"),
    elementClass<VySmilElemRootLayout>(u"root-layout"),
    elementClass<VySmilElemLayout>(u"layout"),
    elementClass<VySmilElemHead>(u"head"),
    elementClass<VySmilElemBody>(u"body"),
    elementClass<VySmilElemSmil>(u"smil"),
};

const ElementClass *findElementClass(QStringView name)
{
    for (const ElementClass &candidate : elementClasses) {
        if (candidate.name == name)
            return &candidate;
    }
    return nullptr;
}

int finding(VySmil::STATUS_CODE found, VySmil::RESULT_CODE result, bool strict, VySmil::STATUS_CODE *status)
{
    if (status)
        *status = found;
    return strict ? result : VySmil::RESULT_OK;
}

} // namespace

int VySmilPrivate::checkElement(const VySmilElemBase &elem, const QString &type, bool strict,
                                VySmil::STATUS_CODE *status, VySmil::SMIL_VERSION version)
{
    if (elem.isValidElement(type, version))
        return VySmil::RESULT_OK;
    return finding(VySmil::STATUS_INVALID_ELEMENT, VySmil::RESULT_INVALID_ELEMENT, strict, status);
}

int VySmilPrivate::checkAttr(const VySmilElemBase &elem, const QString &name, bool strict,
                             VySmil::STATUS_CODE *status, VySmil::SMIL_VERSION version)
{
    if (elem.isValidAttr(name, version))
        return VySmil::RESULT_OK;
    return finding(VySmil::STATUS_INVALID_ATTR, VySmil::RESULT_INVALID_ATTR, strict, status);
}

bool VySmilPrivate::isMadeByFactory(const VySmilElemBase &elem, QStringView type)
{
    const ElementClass *known = findElementClass(type);
    return (known && known->isClassOf(elem)) || isExactly<VySmilElemUnknown>(elem);
}

QString VySmilPrivate::attributeName(QStringView name)
{
    static const QString known[] = {
        QStringLiteral("src"),    QStringLiteral("region"),  QStringLiteral("dur"), QStringLiteral("begin"),
        QStringLiteral("end"),    QStringLiteral("alt"),     QStringLiteral("id"),  QStringLiteral("width"),
        QStringLiteral("height"), QStringLiteral("left"),    QStringLiteral("top"), QStringLiteral("fit"),
        QStringLiteral("name"),   QStringLiteral("content"),
    };
    const auto *const found = std::find(std::begin(known), std::end(known), name);
    return found == std::end(known) ? name.toString() : *found;
}

VySmilElemBase *VySmilPrivate::makeElem(QStringView name)
{
    const ElementClass *known = findElementClass(name);
    if (!known)
        known = findElementClass(name.trimmed().toString().toLower());
    if (known)
        return known->make();
    auto *unknown = new (std::nothrow) VySmilElemUnknown;
    if (unknown)
        unknown->setElemType(name.toString());
    return unknown;
}

VySmilElemBase *VySmilElemBase::newElem(const QString &name)
{
    return VySmilPrivate::makeElem(name);
}

// A plain member although it does not look at the object: that is how clients call it.
bool VySmilElemBase::isValidElement(const QString &name, VySmil::SMIL_VERSION version) const
{
    return version == VySmil::SMIL_VER_DEFAULT && findElementClass(name) != nullptr;
}
