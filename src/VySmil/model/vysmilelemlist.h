// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMLIST_H
#define VYSMIL_VYSMILELEMLIST_H

#include <VySmil/vysmil_export.h>

#include <QList>

class VySmilElemBase;

/// An ordered list of element pointers with a switch that says whether the list owns its elements.
///
/// While auto-deletion is on, removing an element or clearing or destroying the list deletes the elements
/// with their subtrees, however deep those are: deletion does not recurse. An element may stand in one owning
/// list only. A list that a client makes starts with auto-deletion off; the list of an element starts with it
/// on. Null is never stored. Positions count from 0.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemList
{
public:
    /// Iterates over the pointers.
    using const_iterator = QList<VySmilElemBase *>::const_iterator;

    VySmilElemList() = default;
    /// Clears the list.
    ~VySmilElemList();
    Q_DISABLE_COPY_MOVE(VySmilElemList)

    /// Adds \a elem at the end; does nothing for null.
    void append(VySmilElemBase *elem);
    /// Adds \a elem before position \a index, or at the end if there is no such position; does nothing for
    /// null.
    void insert(qsizetype index, VySmilElemBase *elem);

    /// The element at \a index, or null outside the list.
    VySmilElemBase *at(qsizetype index) const { return entries.value(index); }
    /// The number of elements.
    qsizetype count() const { return entries.size(); }
    /// Whether there are none.
    bool isEmpty() const { return entries.isEmpty(); }

    /// Removes the element at \a index, and deletes it while the list owns its elements. False outside the
    /// list.
    bool remove(qsizetype index);
    /// Removes the element at \a index and hands it to the caller, who owns it then. Null outside the list.
    VySmilElemBase *take(qsizetype index);
    /// Removes all elements, and deletes them while the list owns them.
    void clear();

    /// Whether the list owns its elements.
    bool autoDelete() const { return ownsEntries; }
    /// Makes the list own its elements, or no longer.
    void setAutoDelete(bool on) { ownsEntries = on; }

    /// The first pointer, for a range-based for.
    const_iterator begin() const { return entries.cbegin(); }
    /// Behind the last pointer.
    const_iterator end() const { return entries.cend(); }

private:
    bool contains(qsizetype index) const { return index >= 0 && index < entries.size(); }
    static void destroy(QList<VySmilElemBase *> doomed);

    QList<VySmilElemBase *> entries;
    // Takes the entries over while the element of this list is deleted.
    QList<VySmilElemBase *> *heir = nullptr;
    bool ownsEntries = false;
};

#endif
