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

    VySmilElemList() noexcept;
    /// Clears the list.
    ~VySmilElemList();
    Q_DISABLE_COPY_MOVE(VySmilElemList)

    /// Adds \a elem at the end; does nothing for null.
    void append(VySmilElemBase *elem);
    /// Adds \a elem before position \a index, or at the end if there is no such position; does nothing for
    /// null.
    void insert(qsizetype index, VySmilElemBase *elem);

    /// The element at \a index, or null outside the list. A const list hands out elements that can be
    /// changed.
    [[nodiscard]] VySmilElemBase *at(qsizetype index) const noexcept { return m_entries.value(index); }
    /// The number of elements.
    [[nodiscard]] qsizetype count() const noexcept { return m_entries.size(); }
    /// Whether there are none.
    [[nodiscard]] bool isEmpty() const noexcept { return m_entries.isEmpty(); }

    /// Removes the element at \a index, and deletes it while the list owns its elements. False outside the
    /// list.
    bool remove(qsizetype index);
    /// Removes the element at \a index and hands it to the caller, who owns it then. Null outside the list.
    [[nodiscard]] VySmilElemBase *take(qsizetype index);
    /// Removes all elements, and deletes them while the list owns them. In the destructor of an element of a
    /// client's, which the list that owns it is deleting, the children of that element are not deleted here
    /// but right after it, by that list.
    void clear();

    /// Whether the list owns its elements.
    [[nodiscard]] bool autoDelete() const noexcept { return m_ownsEntries; }
    /// Makes the list own its elements, or no longer.
    void setAutoDelete(bool on) noexcept { m_ownsEntries = on; }

    /// The first pointer, for a range-based for.
    [[nodiscard]] const_iterator begin() const noexcept { return m_entries.cbegin(); }
    /// Behind the last pointer.
    [[nodiscard]] const_iterator end() const noexcept { return m_entries.cend(); }

private:
    bool contains(qsizetype index) const noexcept { return index >= 0 && index < m_entries.size(); }
    static void destroy(QList<VySmilElemBase *> doomed);

    QList<VySmilElemBase *> m_entries;
    // Takes the entries over while the element of this list is deleted.
    QList<VySmilElemBase *> *m_heir = nullptr;
    bool m_ownsEntries = false;
};

#endif
