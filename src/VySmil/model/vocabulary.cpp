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

#include <initializer_list>
#include <iterator>
#include <limits>
#include <new>
#include <typeinfo>

namespace {

using VySmilPrivate::Attr;
using VySmilPrivate::Elem;
using VySmilPrivate::MediumKind;

template <class ElemClass>
VySmilElemBase *make()
{
    return new (std::nothrow) ElemClass;
}

template <class ElemClass>
bool isExactly(const VySmilElemBase &elem)
{
    return typeid(elem) == typeid(ElemClass);
}

// Some elements, or some attributes.
template <typename Name>
class SetOf
{
public:
    constexpr SetOf(std::initializer_list<Name> names)
    {
        for (const Name name : names)
            m_bits |= bitOf(name);
    }
    constexpr bool isEmpty() const { return m_bits == 0; }
    constexpr bool contains(Name name) const { return (m_bits & bitOf(name)) != 0; }

private:
    static constexpr quint32 bitOf(Name name) { return quint32(1) << static_cast<int>(name); }

    quint32 m_bits = 0;
};

// What is known of an element.
struct ElementRow
{
    QStringView name;
    VySmilElemBase *(*make)();
    bool (*isClassOf)(const VySmilElemBase &elem);
    SetOf<Attr> attributes;                // that it accepts
    SetOf<Attr> attributesOfOtherVersions; // that it accepts under every version but the one that is known
    SetOf<Elem> children;                  // that the profile lets it hold
    int most;                              // of it in its parent
    Elem elem;
    MediumKind kind; // of media objects
};

template <class ElemClass>
constexpr ElementRow row(Elem elem, QStringView name, int most, SetOf<Attr> attributes, SetOf<Elem> children,
                         MediumKind kind = MediumKind::None, SetOf<Attr> attributesOfOtherVersions = {})
{
    return {name,
            make<ElemClass>,
            isExactly<ElemClass>,
            attributes,
            attributesOfOtherVersions,
            children,
            most,
            elem,
            kind};
}

constexpr int many = std::numeric_limits<int>::max();
constexpr SetOf<Attr> soundAttributes{Attr::Src, Attr::Begin, Attr::End, Attr::Dur, Attr::Alt};
constexpr SetOf<Attr> mediaAttributes{Attr::Src, Attr::Begin, Attr::End, Attr::Dur, Attr::Alt, Attr::Region};

// In the order of Elem.
constexpr ElementRow elementRows[] = {
    row<VySmilElemPar>(Elem::Par, u"par", many, {Attr::Dur},
                       {Elem::Img, Elem::Text, Elem::Audio, Elem::Video, Elem::Ref}),
    row<VySmilElemMediaObjImg>(Elem::Img, u"img", many, mediaAttributes, {}, MediumKind::Image),
    row<VySmilElemMediaObjText>(Elem::Text, u"text", many, mediaAttributes, {}, MediumKind::Text),
    row<VySmilElemMediaObjAudio>(Elem::Audio, u"audio", many, soundAttributes, {}, MediumKind::Audio),
    row<VySmilElemMediaObjVideo>(Elem::Video, u"video", many, mediaAttributes, {}, MediumKind::Video),
    row<VySmilElemMediaObjRef>(Elem::Ref, u"ref", many, mediaAttributes, {}, MediumKind::Other),
    row<VySmilElemRegion>(Elem::Region, u"region", 2,
                          {Attr::Id, Attr::Left, Attr::Top, Attr::Width, Attr::Height, Attr::Fit}, {}),
    row<VySmilElemMeta>(Elem::Meta, u"meta", many, {Attr::Name, Attr::Content}, {}),
    row<VySmilElemRootLayout>(Elem::RootLayout, u"root-layout", 1, {Attr::Width, Attr::Height}, {}),
    row<VySmilElemLayout>(Elem::Layout, u"layout", 1, {}, {Elem::RootLayout, Elem::Region}),
    row<VySmilElemHead>(Elem::Head, u"head", 1, {}, {Elem::Layout, Elem::Meta}, MediumKind::None, {Attr::Id}),
    row<VySmilElemBody>(Elem::Body, u"body", 1, {}, {Elem::Par}, MediumKind::None, {Attr::Id}),
    row<VySmilElemSmil>(Elem::Smil, u"smil", 1, {}, {Elem::Head, Elem::Body}),
};

// A row is found by the number of its element or attribute.
template <typename Rows, typename NumberOf>
constexpr bool isInOrder(const Rows &rows, int count, NumberOf numberOf)
{
    for (int i = 0; i < count; ++i) {
        if (numberOf(rows[i]) != i)
            return false;
    }
    return std::size(rows) == static_cast<std::size_t>(count);
}
static_assert(isInOrder(elementRows, static_cast<int>(Elem::Unknown),
                        [](const ElementRow &row) { return static_cast<int>(row.elem); }));
static_assert(isInOrder(VySmilPrivate::attributeRows, static_cast<int>(Attr::Unknown),
                        [](const VySmilPrivate::AttributeRow &row) { return static_cast<int>(row.attr); }));

constexpr const ElementRow *rowOf(Elem elem)
{
    return elem == Elem::Unknown ? nullptr : &elementRows[static_cast<int>(elem)];
}

// The names are literals: they outlive every string that points to one.
QString literal(QStringView name)
{
    return QString::fromRawData(name.data(), name.size());
}

int finding(VySmil::STATUS_CODE found, VySmil::RESULT_CODE result, bool strict, VySmil::STATUS_CODE *status)
{
    if (status)
        *status = found;
    return strict ? result : VySmil::RESULT_OK;
}

} // namespace

namespace VySmilPrivate {

QString nameOf(Attr attr) noexcept
{
    return attr == Attr::Unknown ? QString() : literal(attributeRows[static_cast<int>(attr)].name);
}

QString nameOf(Elem elem) noexcept
{
    return elem == Elem::Unknown ? QString() : literal(rowOf(elem)->name);
}

Elem elemOf(QStringView name) noexcept
{
    for (const ElementRow &row : elementRows) {
        if (row.name == name)
            return row.elem;
    }
    return Elem::Unknown;
}

Elem elemOf(const VySmilElemBase &elem)
{
    return elemOf(elem.getElemType());
}

bool takes(Elem elem, QStringView name, VySmil::SMIL_VERSION version) noexcept
{
    const ElementRow *const known = rowOf(elem);
    const Attr attr = attrOf(name);
    if (!known || attr == Attr::Unknown)
        return false;
    return (version == VySmil::SMIL_VER_DEFAULT ? known->attributes : known->attributesOfOtherVersions)
        .contains(attr);
}

bool takes(Elem elem, Attr attr) noexcept
{
    const ElementRow *const known = rowOf(elem);
    return known && attr != Attr::Unknown && known->attributes.contains(attr);
}

bool mayHold(Elem parent, Elem child) noexcept
{
    const ElementRow *const known = rowOf(parent);
    return known && child != Elem::Unknown && known->children.contains(child);
}

bool mayHoldAny(Elem elem) noexcept
{
    const ElementRow *const known = rowOf(elem);
    return !known || !known->children.isEmpty();
}

int mostOf(Elem elem) noexcept
{
    const ElementRow *const known = rowOf(elem);
    return known ? known->most : many;
}

MediumKind mediumKindOf(Elem elem) noexcept
{
    const ElementRow *const known = rowOf(elem);
    return known ? known->kind : MediumKind::None;
}

int checkElement(const VySmilElemBase &elem, const QString &type, bool strict, VySmil::STATUS_CODE *status,
                 VySmil::SMIL_VERSION version)
{
    if (elem.isValidElement(type, version))
        return VySmil::RESULT_OK;
    return finding(VySmil::STATUS_INVALID_ELEMENT, VySmil::RESULT_INVALID_ELEMENT, strict, status);
}

int checkAttr(const VySmilElemBase &elem, const QString &name, bool strict, VySmil::STATUS_CODE *status,
              VySmil::SMIL_VERSION version)
{
    if (elem.isValidAttr(name, version))
        return VySmil::RESULT_OK;
    return finding(VySmil::STATUS_INVALID_ATTR, VySmil::RESULT_INVALID_ATTR, strict, status);
}

bool isMadeByFactory(const VySmilElemBase &elem, QStringView type)
{
    const ElementRow *const known = rowOf(elemOf(type));
    return (known && known->isClassOf(elem)) || isExactly<VySmilElemUnknown>(elem);
}

QString interned(QStringView name)
{
    const Attr attr = attrOf(name);
    return attr == Attr::Unknown ? name.toString() : nameOf(attr);
}

VySmilElemBase *makeElem(QStringView name)
{
    Elem elem = elemOf(name);
    if (elem == Elem::Unknown)
        elem = elemOf(name.trimmed().toString().toLower());
    if (elem != Elem::Unknown)
        return makeElem(elem);
    auto *unknown = new (std::nothrow) VySmilElemUnknown;
    if (unknown)
        unknown->setElemType(name.toString());
    return unknown;
}

VySmilElemBase *makeElem(Elem elem)
{
    return rowOf(elem)->make();
}

} // namespace VySmilPrivate

VySmilElemBase *VySmilElemBase::newElem(const QString &name)
{
    return VySmilPrivate::makeElem(name);
}

// A plain member although it does not look at the object: that is how clients call it.
bool VySmilElemBase::isValidElement(const QString &name, VySmil::SMIL_VERSION version) const noexcept
{
    return version == VySmil::SMIL_VER_DEFAULT && VySmilPrivate::elemOf(name) != VySmilPrivate::Elem::Unknown;
}
