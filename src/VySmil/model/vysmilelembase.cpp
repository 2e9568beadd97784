// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilelembase.h>

#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

bool isBefore(const std::pair<QString, QString> &attribute, const QString &name)
{
    return attribute.first < name;
}

} // namespace

VySmilElemBase::VySmilElemBase()
{
    subElements.setAutoDelete(true);
}

VySmilElemBase::VySmilElemBase(const VySmilElemBase &other) : VySmilBase(other)
{
    VySmilElemBase::copyFrom(other);
}

VySmilElemBase::~VySmilElemBase() = default;

void VySmilElemBase::copyFrom(const VySmilElemBase &other)
{
    if (&other == this)
        return;
    attributes = other.attributes;
    elemType = other.elemType;
    subElements.setAutoDelete(other.subElements.autoDelete());

    // The copies are complete before this element gets them, so that its own ancestor can be copied too.
    VySmilElemList copies;
    std::vector<std::pair<const VySmilElemBase *, VySmilElemList *>> pending{{&other, &copies}};
    while (!pending.empty()) {
        const auto [source, target] = pending.back();
        pending.pop_back();
        for (const VySmilElemBase *child : source->subElements) {
            VySmilElemBase *copy = newElem(child->getElemType());
            if (!copy)
                continue;
            // A class of the client's may report a name without keeping it there; its copy is the factory's.
            if (!child->elemType.isEmpty())
                copy->elemType = child->elemType;
            copy->attributes = child->attributes;
            target->append(copy);
            pending.emplace_back(child, &copy->subElements);
        }
    }
    for (VySmilElemBase *copy : copies)
        subElements.append(copy);
}

QString VySmilElemBase::getAttribute(const QString &name) const
{
    const auto place = std::lower_bound(attributes.begin(), attributes.end(), name, isBefore);
    const bool isThere = place != attributes.end() && place->first == name;
    return isThere && !place->second.isEmpty() ? place->second : QStringLiteral("");
}

void VySmilElemBase::setAttribute(const QString &name, const QString &value)
{
    const auto place = std::lower_bound(attributes.cbegin(), attributes.cend(), name, isBefore);
    const qsizetype index = place - attributes.cbegin();
    if (place != attributes.cend() && place->first == name) {
        attributes[index].second = value;
        return;
    }
    // Most elements have a few attributes: one allocation holds them.
    if (attributes.isEmpty())
        attributes.reserve(4);
    attributes.insert(index, {name, value});
}

void VySmilElemBase::rmAttribute(const QString &name)
{
    const auto place = std::lower_bound(attributes.cbegin(), attributes.cend(), name, isBefore);
    if (place != attributes.cend() && place->first == name)
        attributes.erase(place);
}

QMap<QString, QString> VySmilElemBase::getAttributes() const
{
    QMap<QString, QString> map;
    for (const auto &[name, value] : attributes)
        map.insert(map.cend(), name, value);
    return map;
}

unsigned int VySmilElemBase::getSubElementsCount() const noexcept
{
    return static_cast<unsigned int>(subElements.count());
}

unsigned int VySmilElemBase::getSubElementCounts(const QString &name) const
{
    const auto matches = [&name](const VySmilElemBase *child) { return child->getElemType() == name; };
    return static_cast<unsigned int>(std::count_if(subElements.begin(), subElements.end(), matches));
}

VySmilElemBase *VySmilElemBase::getSubElement(unsigned int index, const QString &name) const
{
    return subElements.at(positionOf(index, name));
}

bool VySmilElemBase::rmSubElement(unsigned int index, const QString &name)
{
    return subElements.remove(positionOf(index, name));
}

qsizetype VySmilElemBase::positionOf(unsigned int index, const QString &name) const
{
    if (name.isEmpty())
        return index;
    for (qsizetype i = 0; i < subElements.count(); ++i) {
        if (subElements.at(i)->getElemType() == name && index-- == 0)
            return i;
    }
    return -1;
}

void VySmilElemBase::clearSubElements()
{
    subElements.clear();
}

void VySmilElemBase::setSubElements(const VySmilElemList &list)
{
    VySmilElemList dropped; // cleared at the very end, since list may be that of a child
    if (&list != &subElements) {
        dropped.setAutoDelete(subElements.autoDelete());
        const QSet<VySmilElemBase *> kept(list.begin(), list.end());
        for (VySmilElemBase *child : subElements) {
            if (!kept.contains(child))
                dropped.append(child);
        }
        subElements.setAutoDelete(false);
        subElements.clear();
        for (VySmilElemBase *elem : list)
            subElements.append(elem);
    }
    subElements.setAutoDelete(true);
}
