// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/attributerecords_p.h>

#include <algorithm>

namespace {

// The part of a text that the record of a name takes up, or the empty part where it belongs.
struct Place
{
    qsizetype start;
    qsizetype size;
};

Place placeOf(const QString &text, QStringView name)
{
    qsizetype start = 0;
    for (const auto [otherName, value] : VySmilPrivate::AttributeRecords(text)) {
        const qsizetype size = VySmilPrivate::recordSize(otherName, value);
        if (otherName == name)
            return {start, size};
        if (name < otherName)
            break;
        start += size;
    }
    return {start, 0};
}

} // namespace

namespace VySmilPrivate {

QStringView AttributeRecords::find(QStringView name) const
{
    for (const auto [otherName, value] : *this) {
        if (otherName == name)
            return value;
    }
    return {};
}

void appendRecord(QString &text, QStringView name, QStringView value)
{
    const RecordHeader header{name.size(), value.size()};
    const qsizetype start = text.size();
    text.resize(start + recordSize(name, value));
    QChar *const record = text.data() + start;
    std::memcpy(static_cast<void *>(record), &header, sizeof header);
    std::copy(value.begin(), value.end(), std::copy(name.begin(), name.end(), record + recordHeaderSize));
}

void setRecord(QString &text, QStringView name, QStringView value)
{
    const Place place = placeOf(text, name);
    QString record;
    appendRecord(record, name, value);
    text.replace(place.start, place.size, record);
}

void removeRecord(QString &text, QStringView name)
{
    const Place place = placeOf(text, name);
    text.remove(place.start, place.size);
}

} // namespace VySmilPrivate
