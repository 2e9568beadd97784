// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../kindname.h"
#include "inform.h"

#include <QJsonArray>

namespace {

constexpr auto version = VySmil::SMIL_VER_DEFAULT;

// What an attribute says as a length or a time; nothing for an attribute of another kind.
QJsonObject typedReading(const QString &name, const QString &text)
{
    QJsonObject reading;
    if (holdsLength(name)) {
        VySmil::VyLength length;
        reading[QStringLiteral("reads")] = length.fromString(text) == VySmil::RESULT_OK;
        if (length.unit == VySmil::UNIT_PIXELS)
            reading[QStringLiteral("pixels")] = length.value.pixels;
        else if (length.unit == VySmil::UNIT_PERCENT)
            reading[QStringLiteral("percent")] = static_cast<double>(length.value.percent);
    } else if (holdsTime(name)) {
        VySmil::VyTime time;
        reading[QStringLiteral("reads")] = time.fromString(text) == VySmil::RESULT_OK;
        reading[QStringLiteral("time")] = time.toString();
    }
    return reading;
}

// The bounds of VySmilParser::parse() keep this from recursing deeply.
QJsonObject tree(const VySmilElemBase &elem)
{
    QJsonArray attributes;
    const QMap<QString, QString> map = elem.getAttributes();
    for (auto it = map.begin(); it != map.end(); ++it) {
        QJsonObject attribute = typedReading(it.key(), it.value());
        attribute[QStringLiteral("name")] = it.key();
        attribute[QStringLiteral("value")] = it.value();
        attribute[QStringLiteral("known")] = elem.isValidAttr(it.key(), version);
        attributes << attribute;
    }
    QJsonArray children;
    for (const VySmilElemBase *child : *elem.getSubElements())
        children << tree(*child);
    return {{QStringLiteral("name"), elem.getElemType()},
            {QStringLiteral("known"), elem.isValidElement(elem.getElemType(), version)},
            {QStringLiteral("attributes"), attributes},
            {QStringLiteral("children"), children}};
}

QJsonArray guesses(VySmilMedium::GUESSES flags)
{
    return QJsonArray::fromStringList(namesOf(flags));
}

QJsonObject medium(const VySmilMedium &medium)
{
    QJsonObject object{{QStringLiteral("kind"), kindName(medium.kind)},
                       {QStringLiteral("src"), medium.src},
                       {QStringLiteral("alt"), medium.alt},
                       {QStringLiteral("region"), medium.region},
                       {QStringLiteral("fit"), medium.fit},
                       {QStringLiteral("beginMs"), medium.beginMs},
                       {QStringLiteral("endMs"), medium.endMs},
                       {QStringLiteral("guesses"), guesses(medium.guesses)}};
    if (!medium.rect.isNull())
        object[QStringLiteral("rect")] =
            QJsonArray{medium.rect.x(), medium.rect.y(), medium.rect.width(), medium.rect.height()};
    return object;
}

QJsonObject slideShow(const VySmilSlideShow &show)
{
    QJsonArray slides;
    for (const VySmilSlide &slide : show.slides) {
        QJsonArray media;
        for (const VySmilMedium &shown : slide.media)
            media << medium(shown);
        slides << QJsonObject{{QStringLiteral("durationMs"), slide.durationMs},
                              {QStringLiteral("guesses"), guesses(slide.guesses)},
                              {QStringLiteral("media"), media}};
    }
    return {{QStringLiteral("width"), show.size.width()},
            {QStringLiteral("height"), show.size.height()},
            {QStringLiteral("guesses"), guesses(show.guesses)},
            {QStringLiteral("slides"), slides}};
}

} // namespace

QJsonObject toJson(const Document &document)
{
    QJsonArray findings;
    for (const VySmilFinding &finding : document.findings) {
        const bool isError = finding.severity == VySmilFinding::SEVERITY_ERROR;
        findings << QJsonObject{
            {QStringLiteral("rule"), finding.rule},
            {QStringLiteral("severity"), isError ? QStringLiteral("error") : QStringLiteral("warning")},
            {QStringLiteral("path"), finding.path},
            {QStringLiteral("attribute"), finding.attribute},
            {QStringLiteral("message"), finding.message}};
    }
    return {{QStringLiteral("file"), document.path},
            {QStringLiteral("result"), document.result},
            {QStringLiteral("status"), document.status},
            {QStringLiteral("tree"), tree(document.root)},
            {QStringLiteral("show"), slideShow(document.slides)},
            {QStringLiteral("findings"), findings}};
}
