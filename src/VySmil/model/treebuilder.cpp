// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/treebuilder_p.h>
#include <VySmil/model/vocabulary_p.h>

#include <algorithm>
#include <memory>

namespace VySmilPrivate {

void sortByName(std::vector<Attribute> &attributes)
{
    std::sort(attributes.begin(), attributes.end(),
              [](const Attribute &a, const Attribute &b) { return a.name < b.name; });
}

TreeBuilder::TreeBuilder(const VySmilElemBase &root, bool strict, VySmil::SMIL_VERSION smilVersion)
    : asked(root), isStrict(strict), version(smilVersion)
{
}

void TreeBuilder::startElement(QStringView tag, std::vector<Attribute> &attributes)
{
    if (result != VySmil::RESULT_OK)
        return;
    if (path.empty()) {
        result = readTag(asked, read, tag, attributes);
        path.push_back(&read);
        return;
    }
    VySmilElemBase *const parent = path.back();
    if (!parent) {
        path.push_back(nullptr);
        return;
    }
    std::unique_ptr<VySmilElemBase> child(makeElem(tag));
    const int childResult =
        child ? readTag(*child, *child, tag, attributes) : static_cast<int>(VySmil::RESULT_NO_OBJECT);
    if (childResult < 0 || (childResult > 0 && isStrict)) {
        result = childResult;
        // The root keeps its complete children alone.
        if (path.size() > 1)
            read.getSubElements()->remove(read.getSubElements()->count() - 1);
        return;
    }
    path.push_back(childResult == VySmil::RESULT_OK ? child.get() : nullptr);
    parent->getSubElements()->append(child.release());
}

void TreeBuilder::endElement()
{
    if (result == VySmil::RESULT_OK)
        path.pop_back();
}

int TreeBuilder::handOver(VySmilElemBase &root, VySmil::STATUS_CODE *status)
{
    if (status && found != VySmil::STATUS_OK)
        *status = found;
    const QMap<QString, QString> attributes = read.getAttributes();
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
        root.setAttribute(it.key(), it.value());
    read.getSubElements()->setAutoDelete(false);
    for (VySmilElemBase *child : *read.getSubElements())
        root.getSubElements()->append(child);
    return result;
}

int TreeBuilder::readTag(const VySmilElemBase &elem, VySmilElemBase &target, QStringView tag,
                         std::vector<Attribute> &attributes)
{
    const QString type = elem.getElemType();
    if (tag.trimmed() != type)
        return VySmil::RESULT_UNUSABLE;
    if (const int finding = checkElement(elem, type, isStrict, &found, version))
        return finding;
    for (Attribute &attribute : attributes) {
        const QString name = attribute.name.trimmed();
        if (const int finding = checkAttr(elem, name, isStrict, &found, version))
            return finding;
        const QString value = name == QLatin1String("nohref") ? name : std::move(attribute.value).trimmed();
        if (!name.isEmpty() && !value.isEmpty())
            target.setAttribute(name, value);
    }
    return VySmil::RESULT_OK;
}

} // namespace VySmilPrivate
