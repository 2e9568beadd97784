// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/mediumkind_p.h>
#include <VySmil/model/vysmilelembase.h>

#include <algorithm>

namespace VySmilPrivate {

static QString mimeType(const VySmilPart &part)
{
    return part.contentType.left(part.contentType.indexOf(u';')).trimmed().toLower();
}

bool isSmilPart(const VySmilPart &part)
{
    return part.contentType.trimmed().startsWith(u"application/smil", Qt::CaseInsensitive) &&
           mimeType(part) == QLatin1String("application/smil");
}

std::optional<VySmilMedium::MEDIUM_KIND> kindOfPart(const VySmilPart &part)
{
    const QString type = mimeType(part);
    if (type.startsWith(u"image/"))
        return VySmilMedium::MEDIUM_IMAGE;
    if (type.startsWith(u"text/")) {
        static const QStringList others{QStringLiteral("text/vcard"), QStringLiteral("text/x-vcard"),
                                        QStringLiteral("text/directory"), QStringLiteral("text/calendar"),
                                        QStringLiteral("text/x-vcalendar")};
        return others.contains(type) ? VySmilMedium::MEDIUM_OTHER : VySmilMedium::MEDIUM_TEXT;
    }
    if (type.startsWith(u"audio/"))
        return VySmilMedium::MEDIUM_AUDIO;
    if (type.startsWith(u"video/"))
        return VySmilMedium::MEDIUM_VIDEO;
    return std::nullopt;
}

std::optional<VySmilMedium::MEDIUM_KIND> kindOfElement(const QString &type)
{
    if (type == QLatin1String("img"))
        return VySmilMedium::MEDIUM_IMAGE;
    if (type == QLatin1String("text"))
        return VySmilMedium::MEDIUM_TEXT;
    if (type == QLatin1String("audio"))
        return VySmilMedium::MEDIUM_AUDIO;
    if (type == QLatin1String("video"))
        return VySmilMedium::MEDIUM_VIDEO;
    if (type == QLatin1String("ref"))
        return VySmilMedium::MEDIUM_OTHER;
    return std::nullopt;
}

VySmilMedium::MEDIUM_KIND kindOf(const VySmilElemBase &elem, const QList<VySmilPart> &parts, int part)
{
    const auto byPart = part < 0 ? std::nullopt : kindOfPart(parts.at(part));
    return byPart ? *byPart : kindOfElement(elem.getElemType()).value_or(VySmilMedium::MEDIUM_OTHER);
}

int sortsOf(VySmilMedium::MEDIUM_KIND kind)
{
    switch (kind) {
    case VySmilMedium::MEDIUM_IMAGE:
        return SORT_PICTURE;
    case VySmilMedium::MEDIUM_TEXT:
        return SORT_TEXT;
    case VySmilMedium::MEDIUM_AUDIO:
        return SORT_SOUND;
    case VySmilMedium::MEDIUM_VIDEO:
        return SORT_PICTURE | SORT_SOUND;
    default:
        return 0;
    }
}

qint32 knownLength(VySmilMedium::MEDIUM_KIND kind, const QList<VySmilPart> &parts, int part)
{
    return part >= 0 && (sortsOf(kind) & SORT_SOUND) != 0 ? std::max(0, parts.at(part).durationMs) : 0;
}

} // namespace VySmilPrivate
