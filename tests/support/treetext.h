// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_TREETEXT_H
#define VYSMIL_TESTS_TREETEXT_H

#include <VySmil/model/vysmilelemunknown.h>

#include <QStringList>

/// The whole tree under \a elem as one line: smil(body(par[dur=5s](img[src=a.jpg] ?foo))). An unknown element
/// bears a "?", so that a tree of the wrong classes shows.
inline QString treeText(const VySmilElemBase &elem)
{
    QString text = elem.getElemType();
    if (dynamic_cast<const VySmilElemUnknown *>(&elem))
        text.prepend(u'?');
    QStringList attributes;
    const QMap<QString, QString> map = elem.getAttributes();
    for (auto it = map.begin(); it != map.end(); ++it)
        attributes << it.key() + u'=' + it.value();
    if (!attributes.isEmpty())
        text += u'[' + attributes.join(u' ') + u']';
    QStringList children;
    for (const VySmilElemBase *child : *elem.getSubElements())
        children << treeText(*child);
    if (!children.isEmpty())
        text += u'(' + children.join(u' ') + u')';
    return text;
}

#endif
