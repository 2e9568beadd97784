// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/attributerecords_p.h>
#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelembase.h>

#include <QDomElement>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>
#include <vector>

namespace {

struct NameAndValue
{
    QString name;
    QString value;
};

// Qt keeps a DOM element's attributes in a hash whose order changes from run to run. Walking the hash is
// slow, so the names that messages are made of are looked up, the most frequent first, and the hash is walked
// only where that does not find all.
QVarLengthArray<NameAndValue, 6> sortedAttributes(const QDomElement &elem, const QString &tag)
{
    using Names = std::array<QString, 6>;
    static const Names mediaNames{QStringLiteral("src"),   QStringLiteral("region"), QStringLiteral("dur"),
                                  QStringLiteral("begin"), QStringLiteral("end"),    QStringLiteral("alt")};
    static const Names layoutNames{QStringLiteral("width"), QStringLiteral("height"), QStringLiteral("id"),
                                   QStringLiteral("left"),  QStringLiteral("top"),    QStringLiteral("fit")};
    const bool isLayout = tag == QLatin1String("region") || tag == QLatin1String("root-layout");
    QVarLengthArray<NameAndValue, 6> sorted;
    const QDomNamedNodeMap map = elem.attributes();
    const int length = map.length();
    for (const QString &name : isLayout ? layoutNames : mediaNames) {
        if (sorted.size() == length)
            break;
        QString value = elem.attribute(name);
        if (!value.isEmpty())
            sorted.append({name, std::move(value)});
    }
    if (sorted.size() < length) {
        sorted.clear();
        for (int i = 0; i < length; ++i) {
            const QDomNode node = map.item(i);
            if (node.isAttr())
                sorted.append({node.nodeName(), node.nodeValue()});
        }
    }
    std::sort(sorted.begin(), sorted.end(),
              [](const NameAndValue &a, const NameAndValue &b) { return a.name < b.name; });
    return sorted;
}

} // namespace

int VySmilElemBase::fromDomElem(const QDomElement &elem, bool strict, VySmil::STATUS_CODE *status,
                                VySmil::SMIL_VERSION version)
{
    // An element whose children are being read. All but the first belong to this walk until complete.
    struct Reading
    {
        VySmilElemBase *elem;
        std::unique_ptr<VySmilElemBase> owner;
        QDomElement nextChild;
    };
    std::vector<Reading> path;
    path.reserve(16);

    int result = readStartTag(elem, elem.tagName(), strict, status, version);
    if (result != VySmil::RESULT_OK)
        return result;
    path.push_back({this, nullptr, elem.firstChildElement()});
    for (;;) {
        Reading &parent = path.back();
        if (parent.nextChild.isNull()) {
            VySmilElemBase *const complete = parent.owner.release();
            path.pop_back();
            if (path.empty())
                return VySmil::RESULT_OK;
            path.back().elem->subElements.append(complete);
            continue;
        }
        const QString tag = parent.nextChild.tagName();
        std::unique_ptr<VySmilElemBase> child(newElem(tag));
        if (!child)
            return VySmil::RESULT_NO_OBJECT;
        result = child->readStartTag(parent.nextChild, tag, strict, status, version);
        if (result != VySmil::RESULT_OK && strict)
            return result;
        const QDomElement grandchild =
            result == VySmil::RESULT_OK ? parent.nextChild.firstChildElement() : QDomElement();
        parent.nextChild = parent.nextChild.nextSiblingElement();
        if (grandchild.isNull()) {
            parent.elem->subElements.append(child.release());
        } else {
            VySmilElemBase *const readElem = child.get();
            path.push_back({readElem, std::move(child), grandchild});
        }
    }
}

int VySmilElemBase::readStartTag(const QDomElement &elem, const QString &tagName, bool strict,
                                 VySmil::STATUS_CODE *status, VySmil::SMIL_VERSION version)
{
    const QString tag = tagName.trimmed();
    if (tag != getElemType())
        return VySmil::RESULT_UNUSABLE;
    if (const int result = VySmilPrivate::checkElement(*this, tag, strict, status, version))
        return result;
    const auto found = sortedAttributes(elem, tag);
    bool isAscending = attributes.isEmpty();
    if (isAscending) {
        qsizetype size = 0;
        for (const auto &[name, value] : found)
            size += VySmilPrivate::recordSize(name, value);
        attributes.reserve(size);
    }
    for (const auto &[storedName, storedValue] : found) {
        const QString name = storedName.trimmed();
        if (const int result = VySmilPrivate::checkAttr(*this, name, strict, status, version))
            return result;
        const QStringView value = name == QLatin1String("nohref") ? name : QStringView(storedValue).trimmed();
        if (name.isEmpty() || value.isEmpty())
            continue;
        // A name that is trimmed may belong to another place.
        isAscending = isAscending && name.size() == storedName.size();
        if (isAscending)
            VySmilPrivate::appendRecord(attributes, name, value);
        else
            VySmilPrivate::setRecord(attributes, name, value);
    }
    return VySmil::RESULT_OK;
}
