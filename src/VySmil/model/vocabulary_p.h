// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VOCABULARY_P_H
#define VYSMIL_VOCABULARY_P_H

#include <VySmil/vysmil.h>

#include <QString>

class VySmilElemBase;

namespace VySmilPrivate {

/// The elements of the vocabulary; vocabulary.cpp has a row for each. The frequent ones come first.
enum class Elem : quint8 {
    Par,
    Img,
    Text,
    Audio,
    Video,
    Ref,
    Region,
    Meta,
    RootLayout,
    Layout,
    Head,
    Body,
    Smil,
    Unknown, ///< none of these
};

/// The attributes of the vocabulary; attributeRows has a row for each. The frequent ones come first.
enum class Attr : quint8 {
    Src,
    Region,
    Dur,
    Begin,
    End,
    Alt,
    Id,
    Width,
    Height,
    Left,
    Top,
    Fit,
    Name,
    Content,
    Unknown, ///< none of these
};

/// What an attribute holds.
enum class ValueKind : quint8 { Text, Length, Time };

/// What a media object is, by its element alone; the numbers are those of VySmilMedium::MEDIUM_KIND.
enum class MediumKind : quint8 { Image, Text, Audio, Video, Other, None };

struct AttributeRow
{
    QStringView name;
    Attr attr;
    ValueKind holds;
};

inline constexpr AttributeRow attributeRows[] = {
    {u"src", Attr::Src, ValueKind::Text},         {u"region", Attr::Region, ValueKind::Text},
    {u"dur", Attr::Dur, ValueKind::Time},         {u"begin", Attr::Begin, ValueKind::Time},
    {u"end", Attr::End, ValueKind::Time},         {u"alt", Attr::Alt, ValueKind::Text},
    {u"id", Attr::Id, ValueKind::Text},           {u"width", Attr::Width, ValueKind::Length},
    {u"height", Attr::Height, ValueKind::Length}, {u"left", Attr::Left, ValueKind::Length},
    {u"top", Attr::Top, ValueKind::Length},       {u"fit", Attr::Fit, ValueKind::Text},
    {u"name", Attr::Name, ValueKind::Text},       {u"content", Attr::Content, ValueKind::Text},
};

/// The one attribute that is stored with its own name as its value, and written as a bare word. It is not in
/// the vocabulary.
inline constexpr QStringView bareAttribute = u"nohref";

/// The attribute that is called exactly \a name.
inline Attr attrOf(QStringView name) noexcept
{
    for (const AttributeRow &row : attributeRows) {
        if (row.name == name)
            return row.attr;
    }
    return Attr::Unknown;
}

/// What an attribute holds; text, where it is none of the vocabulary.
constexpr ValueKind valueKindOf(Attr attr) noexcept
{
    return attr == Attr::Unknown ? ValueKind::Text : attributeRows[static_cast<int>(attr)].holds;
}

/// The name of an attribute of the vocabulary, to use and to store without an allocation.
QString nameOf(Attr attr) noexcept;
/// The name of an element of the vocabulary, likewise.
QString nameOf(Elem elem) noexcept;

/// The element that is called exactly \a name.
Elem elemOf(QStringView name) noexcept;
/// The element that \a elem is by its type name, whatever its class.
Elem elemOf(const VySmilElemBase &elem);

/// Whether an element of the vocabulary accepts the attribute \a name under \a version.
bool takes(Elem elem, QStringView name, VySmil::SMIL_VERSION version) noexcept;
/// Whether it accepts \a attr under the version that is known.
bool takes(Elem elem, Attr attr) noexcept;
/// Whether the profile lets \a parent hold \a child.
bool mayHold(Elem parent, Elem child) noexcept;
/// Whether it lets \a elem hold anything; what is unknown may.
bool mayHoldAny(Elem elem) noexcept;
/// How many of \a elem it lets their parent hold.
int mostOf(Elem elem) noexcept;
/// What kind of media object an element is, if it is one.
MediumKind mediumKindOf(Elem elem) noexcept;

/// The checks of reading and writing. A finding goes to \a status unless that is null; the result is
/// RESULT_OK, or in a strict run that of the finding.
int checkElement(const VySmilElemBase &elem, const QString &type, bool strict, VySmil::STATUS_CODE *status,
                 VySmil::SMIL_VERSION version);
int checkAttr(const VySmilElemBase &elem, const QString &name, bool strict, VySmil::STATUS_CODE *status,
              VySmil::SMIL_VERSION version);

/// The text of a name that stands in a document. The names of the vocabulary cost no allocation.
QString interned(QStringView name);

/// What VySmilElemBase::newElem() gives for \a name.
VySmilElemBase *makeElem(QStringView name);
/// The same for the name of \a elem, which is one of the vocabulary.
VySmilElemBase *makeElem(Elem elem);

/// Whether the class of \a elem, whose type name is \a type, is one that newElem() makes, and not one that a
/// client derived.
bool isMadeByFactory(const VySmilElemBase &elem, QStringView type);

} // namespace VySmilPrivate

#endif
