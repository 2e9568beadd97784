// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_kind_p.h>

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace {

using VySmilPrivate::Elem;
using VySmilPrivate::MediumKind;

// What kind of medium the first of each pair of rows is, and which sorts it is of.
struct KindRow
{
    VySmilMedium::MEDIUM_KIND kind;
    MediumKind ofElement;
    Elem element;
    VySmilPrivate::Sorts sorts;
    QStringView mimePrefix;
    QStringView usualFit;
};

constexpr KindRow kindRows[] = {
    {VySmilMedium::MEDIUM_IMAGE, MediumKind::Image, Elem::Img, VySmilPrivate::Sort::Picture, u"image/",
     u"meet"},
    {VySmilMedium::MEDIUM_TEXT, MediumKind::Text, Elem::Text, VySmilPrivate::Sort::Text, u"text/", u"scroll"},
    {VySmilMedium::MEDIUM_AUDIO, MediumKind::Audio, Elem::Audio, VySmilPrivate::Sort::Sound, u"audio/", {}},
    {VySmilMedium::MEDIUM_VIDEO, MediumKind::Video, Elem::Video,
     VySmilPrivate::Sorts(VySmilPrivate::Sort::Picture) | VySmilPrivate::Sort::Sound, u"video/", u"meet"},
    {VySmilMedium::MEDIUM_OTHER, MediumKind::Other, Elem::Ref, {}, {}, {}},
};

// A number outside of the list is anything else.
const KindRow &rowOf(VySmilMedium::MEDIUM_KIND kind)
{
    const auto *const found = std::find_if(std::begin(kindRows), std::end(kindRows),
                                           [kind](const KindRow &row) { return row.kind == kind; });
    return found == std::end(kindRows) ? kindRows[VySmilMedium::MEDIUM_OTHER] : *found;
}

QStringView mimeType(const VySmilPart &part) noexcept
{
    return QStringView(part.contentType).left(part.contentType.indexOf(u';')).trimmed();
}

bool isOneOf(QStringView text, std::initializer_list<QStringView> names,
             Qt::CaseSensitivity sensitivity = Qt::CaseSensitive) noexcept
{
    return std::any_of(names.begin(), names.end(), [&](QStringView name) {
        return name.size() == text.size() && name.compare(text, sensitivity) == 0;
    });
}

} // namespace

bool VySmilPart::isSmil() const noexcept
{
    return isOneOf(mimeType(*this), {u"application/smil", u"application/smil+xml", u"application/x-smil"},
                   Qt::CaseInsensitive);
}

namespace VySmilPrivate {

std::optional<VySmilMedium::MEDIUM_KIND> kindOfPart(const VySmilPart &part)
{
    const QStringView type = mimeType(part);
    // Contacts and appointments are texts to no one who reads them.
    if (isOneOf(type,
                {u"text/vcard", u"text/x-vcard", u"text/directory", u"text/calendar", u"text/x-vcalendar"},
                Qt::CaseInsensitive))
        return VySmilMedium::MEDIUM_OTHER;
    for (const KindRow &row : kindRows) {
        if (!row.mimePrefix.isEmpty() && type.startsWith(row.mimePrefix, Qt::CaseInsensitive))
            return row.kind;
    }
    return std::nullopt;
}

std::optional<VySmilMedium::MEDIUM_KIND> kindOfElement(Elem elem) noexcept
{
    const MediumKind kind = mediumKindOf(elem);
    for (const KindRow &row : kindRows) {
        if (row.ofElement == kind)
            return row.kind;
    }
    return std::nullopt;
}

VySmilMedium::MEDIUM_KIND kindOf(Elem elem, const QList<VySmilPart> &parts, int part)
{
    const auto byPart = part < 0 ? std::nullopt : kindOfPart(parts.at(part));
    return byPart ? *byPart : kindOfElement(elem).value_or(VySmilMedium::MEDIUM_OTHER);
}

Elem elementFor(VySmilMedium::MEDIUM_KIND kind) noexcept
{
    return rowOf(kind).element;
}

Sorts sortsOf(VySmilMedium::MEDIUM_KIND kind) noexcept
{
    return rowOf(kind).sorts;
}

bool isVisual(VySmilMedium::MEDIUM_KIND kind) noexcept
{
    return sortsOf(kind).testAnyFlags(Sorts(Sort::Picture) | Sort::Text);
}

QString usualFit(VySmilMedium::MEDIUM_KIND kind)
{
    return rowOf(kind).usualFit.toString();
}

bool isFit(QStringView fit) noexcept
{
    return isOneOf(fit, {u"fill", u"hidden", u"meet", u"scroll", u"slice"});
}

qint32 knownLength(VySmilMedium::MEDIUM_KIND kind, const QList<VySmilPart> &parts, int part)
{
    return part >= 0 && sortsOf(kind).testFlag(Sort::Sound) ? std::max(0, parts.at(part).durationMs) : 0;
}

} // namespace VySmilPrivate
