// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelembase.h>
#include <VySmil/model/xmltext_p.h>

#include <QSet>

#include <vector>

int VySmilElemBase::toString(QString &out, bool strict, VySmil::STATUS_CODE *status,
                             VySmil::SMIL_VERSION version) const
{
    struct Writing
    {
        const VySmilElemBase *elem;
        QString type;
        qsizetype nextChild;
    };
    std::vector<Writing> path;
    path.reserve(16);

    const VySmilElemBase *elem = this;
    QString type = getElemType();
    for (;;) {
        const int result = elem->writeStartTag(type, out, strict, status, version);
        if (result != VySmil::RESULT_OK)
            return result;
        path.push_back({elem, type, 0});
        elem = nullptr;
        while (!elem) {
            Writing &parent = path.back();
            const VySmilElemBase *child = parent.elem->subElements.at(parent.nextChild++);
            if (!child) {
                out += QStringView(u"</") + parent.type + QStringView(u">\n");
                path.pop_back();
                if (path.empty())
                    return VySmil::RESULT_OK;
                continue;
            }
            type = child->getElemType();
            if (VySmilPrivate::isMadeByFactory(*child, type)) {
                elem = child;
                continue;
            }
            // A class of the client's may write itself in its own way.
            const int childResult = child->toString(out, strict, status, version);
            if (childResult < 0 || (childResult > 0 && strict))
                return childResult;
        }
    }
}

int VySmilElemBase::writeStartTag(const QString &type, QString &out, bool strict, VySmil::STATUS_CODE *status,
                                  VySmil::SMIL_VERSION version) const
{
    if (const int result = VySmilPrivate::checkElement(*this, type, strict, status, version))
        return result;
    out += u'<' + type;
    QSet<QString> writtenUntrimmed;
    for (const auto &[storedName, storedValue] : attributes) {
        const QString name = storedName.trimmed();
        if (const int result = VySmilPrivate::checkAttr(*this, name, strict, status, version))
            return result;
        const QStringView value = QStringView(storedValue).trimmed();
        if (name.isEmpty() || value.isEmpty())
            continue;
        // Of stored names that are the same once trimmed, the one that needs no trimming is written, else the
        // first: XML allows a name once.
        if (name.size() != storedName.size()) {
            if (!getAttribute(name).trimmed().isEmpty() || writtenUntrimmed.contains(name))
                continue;
            writtenUntrimmed.insert(name);
        }
        if (name == VySmilPrivate::bareAttribute) {
            out += u' ' + name;
            continue;
        }
        out += u' ' + name + QStringView(u"=\"");
        VySmilPrivate::appendAttributeValue(out, value);
        out += u'"';
    }
    out += QStringView(u">\n");
    return VySmil::RESULT_OK;
}
