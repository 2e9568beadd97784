// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilelembase.h>
#include <VySmil/model/vysmilelemlist.h>

#include <utility>

VySmilElemList::VySmilElemList() noexcept = default;

VySmilElemList::~VySmilElemList()
{
    clear();
}

void VySmilElemList::append(VySmilElemBase *elem)
{
    if (!elem)
        return;
    // Most elements that have children have a few: one allocation holds them.
    if (m_entries.isEmpty())
        m_entries.reserve(4);
    m_entries.append(elem);
}

void VySmilElemList::insert(qsizetype index, VySmilElemBase *elem)
{
    if (elem)
        m_entries.insert(contains(index) ? index : m_entries.size(), elem);
}

bool VySmilElemList::remove(qsizetype index)
{
    VySmilElemBase *elem = take(index);
    if (elem && m_ownsEntries)
        destroy({elem});
    return elem != nullptr;
}

VySmilElemBase *VySmilElemList::take(qsizetype index)
{
    return contains(index) ? m_entries.takeAt(index) : nullptr;
}

void VySmilElemList::clear()
{
    QList<VySmilElemBase *> removed;
    removed.swap(m_entries);
    if (!m_ownsEntries)
        return;
    if (m_heir)
        m_heir->append(removed);
    else
        destroy(std::move(removed));
}

// The list of an element that is being deleted does not delete its own entries: it leaves them to the loop
// here, so that the stack does not grow with the depth of the tree.
void VySmilElemList::destroy(QList<VySmilElemBase *> doomed)
{
    while (!doomed.isEmpty()) {
        VySmilElemBase *elem = doomed.takeLast();
        elem->getSubElements()->m_heir = &doomed;
        delete elem;
    }
}
