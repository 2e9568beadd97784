// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/treebuilder_p.h>

#include <QDomElement>
#include <QMap>

#include <vector>

namespace {

void startElement(VySmilPrivate::TreeBuilder &builder, const QDomElement &elem)
{
    // Qt's map is a hash whose order changes from run to run, and may hold a name under several namespaces.
    QMap<QString, QString> sorted;
    const QDomNamedNodeMap map = elem.attributes();
    for (int i = 0; i < map.length(); ++i) {
        const QDomNode node = map.item(i);
        if (node.isAttr())
            sorted.insert(node.nodeName(), node.nodeValue());
    }
    std::vector<VySmilPrivate::Attribute> attributes;
    for (auto it = sorted.begin(); it != sorted.end(); ++it)
        attributes.push_back({it.key(), it.value()});
    builder.startElement(elem.tagName(), attributes);
}

} // namespace

int VySmilElemBase::fromDomElem(const QDomElement &elem, bool strict, VySmil::STATUS_CODE *status,
                                VySmil::SMIL_VERSION version)
{
    VySmilPrivate::TreeBuilder builder(*this, strict, version);
    QDomElement current = elem;
    startElement(builder, current);
    for (;;) {
        QDomElement next = current.firstChildElement();
        while (next.isNull()) {
            builder.endElement();
            if (current == elem)
                return builder.handOver(*this, status);
            next = current.nextSiblingElement();
            if (next.isNull())
                current = current.parentNode().toElement();
        }
        current = next;
        startElement(builder, current);
    }
}
