// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/attributeview_p.h>
#include <VySmil/model/treebuilder_p.h>
#include <VySmil/model/vocabulary_p.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace VySmilPrivate {

void sortByName(std::vector<Attribute> &attributes)
{
    std::sort(attributes.begin(), attributes.end(),
              [](const Attribute &a, const Attribute &b) { return a.name < b.name; });
}

TreeBuilder::TreeBuilder(const VySmilElemBase &root, bool strict, VySmil::SMIL_VERSION version)
    : m_asked(root), m_isStrict(strict), m_version(version)
{
}

void TreeBuilder::startElement(QStringView tag, std::vector<Attribute> &attributes)
{
    if (m_result != VySmil::RESULT_OK)
        return;
    if (m_path.empty()) {
        m_result = readTag(m_asked, m_read, tag, attributes);
        m_path.push_back(&m_read);
        return;
    }
    VySmilElemBase *const parent = m_path.back();
    if (!parent) {
        m_path.push_back(nullptr);
        return;
    }
    std::unique_ptr<VySmilElemBase> child(makeElem(tag));
    const int childResult =
        child ? readTag(*child, *child, tag, attributes) : static_cast<int>(VySmil::RESULT_NO_OBJECT);
    if (childResult < 0 || (childResult > 0 && m_isStrict)) {
        m_result = childResult;
        // The root keeps its complete children alone.
        if (m_path.size() > 1)
            m_read.getSubElements()->remove(m_read.getSubElements()->count() - 1);
        return;
    }
    m_path.push_back(childResult == VySmil::RESULT_OK ? child.get() : nullptr);
    parent->getSubElements()->append(child.release());
}

void TreeBuilder::endElement()
{
    if (m_result == VySmil::RESULT_OK)
        m_path.pop_back();
}

int TreeBuilder::handOver(VySmilElemBase &root, VySmil::STATUS_CODE *status)
{
    if (status && m_found != VySmil::STATUS_OK)
        *status = m_found;
    for (const auto &[name, value] : AttributeView(m_read))
        root.setAttribute(name, value);
    m_read.getSubElements()->setAutoDelete(false);
    for (VySmilElemBase *child : *m_read.getSubElements())
        root.getSubElements()->append(child);
    return m_result;
}

int TreeBuilder::readTag(const VySmilElemBase &elem, VySmilElemBase &target, QStringView tag,
                         std::vector<Attribute> &attributes)
{
    const QString type = elem.getElemType();
    if (tag.trimmed() != type)
        return VySmil::RESULT_UNUSABLE;
    if (const int finding = checkElement(elem, type, m_isStrict, &m_found, m_version))
        return finding;
    for (Attribute &attribute : attributes) {
        const QString name = attribute.name.trimmed();
        if (const int finding = checkAttr(elem, name, m_isStrict, &m_found, m_version))
            return finding;
        const QString value = name == bareAttribute ? name : std::move(attribute.value).trimmed();
        if (!name.isEmpty() && !value.isEmpty())
            target.setAttribute(name, value);
    }
    return VySmil::RESULT_OK;
}

} // namespace VySmilPrivate
