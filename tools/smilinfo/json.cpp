// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../names.h"
#include "../printable.h"
#include "inform.h"

#include <VySmil/model/vocabulary_p.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaProperty>

namespace {

constexpr auto version = VySmil::SMIL_VER_DEFAULT;

// What an attribute says as a length or a time; nothing for an attribute of another kind.
QJsonObject typedReading(const QString &name, const QString &text)
{
    QJsonObject reading;
    switch (VySmilPrivate::valueKindOf(VySmilPrivate::attrOf(name))) {
    case VySmilPrivate::ValueKind::Length: {
        VySmil::VyLength length;
        reading[QStringLiteral("reads")] = length.fromString(text) == VySmil::RESULT_OK;
        if (length.unit == VySmil::UNIT_PIXELS)
            reading[QStringLiteral("pixels")] = length.value.pixels;
        else if (length.unit == VySmil::UNIT_PERCENT)
            reading[QStringLiteral("percent")] = static_cast<double>(length.value.percent);
        break;
    }
    case VySmilPrivate::ValueKind::Time: {
        VySmil::VyTime time;
        reading[QStringLiteral("reads")] = time.fromString(text) == VySmil::RESULT_OK;
        reading[QStringLiteral("time")] = time.toString();
        break;
    }
    case VySmilPrivate::ValueKind::Text:
        break;
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

// A field of one of the library's values. Undefined, which is left out, where it says nothing or is no plain
// value.
QJsonValue field(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<VySmilMedium::GUESSES>())
        return QJsonArray::fromStringList(shortNames(value.value<VySmilMedium::GUESSES>()));
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::QRect: {
        const QRect rect = value.toRect();
        if (rect.isNull())
            return QJsonValue::Undefined;
        return QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()};
    }
    case QMetaType::QColor: {
        const auto color = value.value<QColor>();
        return color.isValid() ? colorName(color) : QJsonValue(QJsonValue::Undefined);
    }
    default:
        return QJsonValue::Undefined;
    }
}

// The plain fields of a value by their names.
template <typename Gadget>
QJsonObject fields(const Gadget &gadget)
{
    QJsonObject object;
    const QMetaObject &meta = Gadget::staticMetaObject;
    for (int i = 0; i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        object[QLatin1String(property.name())] = field(property.readOnGadget(&gadget));
    }
    return object;
}

QJsonObject medium(const VySmilMedium &medium, const Parts &parts)
{
    QJsonObject object = fields(medium);
    object[QStringLiteral("kind")] = shortName(medium.kind);
    object[QStringLiteral("part")] =
        medium.part < 0 ? QJsonValue(QJsonValue::Undefined) : parts.files.at(medium.part);
    return object;
}

QJsonObject slideShow(const VySmilSlideShow &show, const Parts &parts)
{
    QJsonArray slides;
    for (const VySmilSlide &slide : show.slides) {
        QJsonArray media;
        for (const VySmilMedium &shown : slide.media)
            media << medium(shown, parts);
        QJsonObject object = fields(slide);
        object[QStringLiteral("media")] = media;
        slides << object;
    }
    QJsonArray unused;
    for (const int part : show.unusedParts)
        unused << parts.files.at(part);
    QJsonObject object = fields(show);
    object[QStringLiteral("width")] = show.size.width();
    object[QStringLiteral("height")] = show.size.height();
    object[QStringLiteral("slides")] = slides;
    object[QStringLiteral("unusedParts")] = unused;
    return object;
}

QJsonArray partList(const Parts &parts)
{
    QJsonArray list;
    for (qsizetype i = 0; i < parts.list.size(); ++i)
        list << QJsonObject{{QStringLiteral("file"), parts.files.at(i)},
                            {QStringLiteral("contentType"), parts.list.at(i).contentType}};
    return list;
}

QJsonArray findings(const QList<VySmilFinding> &found)
{
    QJsonArray findings;
    for (const VySmilFinding &finding : found) {
        QJsonObject object = fields(finding);
        object[QStringLiteral("rule")] =
            QLatin1String(QMetaEnum::fromType<VySmilFinding::RULE>().valueToKey(finding.rule));
        object[QStringLiteral("severity")] = shortName(finding.severity);
        findings << object;
    }
    return findings;
}

} // namespace

QString colorName(const QColor &color)
{
    return color.alpha() == 0 ? QStringLiteral("transparent") : color.name();
}

QJsonObject toJson(const Document &document, const Wishes &wishes)
{
    const Message &message = document.message;
    QJsonObject object{{QStringLiteral("file"), message.path},
                       {QStringLiteral("result"), message.result},
                       {QStringLiteral("status"), message.status},
                       {QStringLiteral("tree"), tree(message.root)},
                       {QStringLiteral("parts"), partList(message.parts)},
                       {QStringLiteral("show"), slideShow(document.slides, message.parts)}};
    if (!message.mended.isEmpty())
        object[QStringLiteral("mended")] = message.mended;
    if (wishes.level)
        object[QStringLiteral("findings")] = findings(document.findings);
    return object;
}

QJsonObject errorToJson(const QString &path, const QString &error)
{
    return {{QStringLiteral("file"), path}, {QStringLiteral("error"), error}};
}

void printJson(QTextStream &out, const QJsonObject &object)
{
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    out << printableJson(QString::fromUtf8(json)) << '\n';
}
