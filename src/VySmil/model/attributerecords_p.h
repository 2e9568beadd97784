// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_ATTRIBUTERECORDS_P_H
#define VYSMIL_ATTRIBUTERECORDS_P_H

#include <QString>

#include <cstring>

namespace VySmilPrivate {

/// The attributes of an element stand in one text, in ascending order of their names: each as a header with
/// the lengths of its name and its value, the name, and the value. So a tree takes few allocations, and its
/// attributes lie in memory in the order in which they are walked.
struct RecordHeader
{
    qsizetype nameSize;
    qsizetype valueSize;
};

constexpr qsizetype recordHeaderSize = sizeof(RecordHeader) / sizeof(QChar);

/// A view on one attribute.
struct AttributeRecord
{
    QStringView name;
    QStringView value;
};

/// Walks records.
class AttributeIterator
{
public:
    explicit AttributeIterator(const QChar *record) : position(record) {}

    AttributeRecord operator*() const
    {
        RecordHeader header;
        std::memcpy(&header, position, sizeof header);
        const QChar *const name = position + recordHeaderSize;
        return {QStringView(name, header.nameSize), QStringView(name + header.nameSize, header.valueSize)};
    }
    AttributeIterator &operator++()
    {
        position = (**this).value.end();
        return *this;
    }
    bool operator!=(const AttributeIterator &other) const { return position != other.position; }

private:
    const QChar *position;
};

/// The records of a text, for a range-based for. The text stays as it is meanwhile.
class AttributeRecords
{
public:
    explicit AttributeRecords(const QString &records) : text(records) {}

    AttributeIterator begin() const { return AttributeIterator(text.constBegin()); }
    AttributeIterator end() const { return AttributeIterator(text.constEnd()); }

    /// The value of \a name, or a null view.
    QStringView find(QStringView name) const;

private:
    const QString &text;
};

/// The length of a record.
inline qsizetype recordSize(QStringView name, QStringView value)
{
    return recordHeaderSize + name.size() + value.size();
}

/// Adds a record at the end of \a text, where \a name belongs behind all others.
void appendRecord(QString &text, QStringView name, QStringView value);

/// Adds a record at the place where \a name belongs, or replaces the one of that name.
void setRecord(QString &text, QStringView name, QStringView value);

/// Removes the record of \a name, if there is one.
void removeRecord(QString &text, QStringView name);

} // namespace VySmilPrivate

#endif
