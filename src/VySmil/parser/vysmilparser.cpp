// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/parser/documentbounds_p.h>
#include <VySmil/parser/vysmilparser.h>

#include <QDomDocument>

int VySmilParser::parse(const QString &text, VySmilElemSmil *root, bool strict, VySmil::STATUS_CODE *status,
                        VySmil::SMIL_VERSION version)
{
    if (status)
        *status = VySmil::STATUS_OK;
    QStringView document = QStringView(text).trimmed();
    if (!root || document.isEmpty())
        return VySmil::RESULT_UNUSABLE;
    if (const qsizetype start = document.indexOf(QLatin1String("<smil")); start > 0)
        document = document.sliced(start);

    QDomDocument dom;
    bool isWellFormed = false;
    // The copy for the DOM is gone before the tree is built.
    if (const auto bounded = VySmilPrivate::boundedDocument(document, MAX_DEPTH, MAX_ATTRIBUTES))
        isWellFormed = dom.setContent(*bounded);
    root->clearSubElements();
    if (!isWellFormed)
        return VySmil::RESULT_MALFORMED;
    return root->fromDomElem(dom.documentElement(), strict, status, version);
}

int VySmilParser::assemble(const VySmilElemSmil *root, QString &out, bool strict, VySmil::STATUS_CODE *status,
                           VySmil::SMIL_VERSION version)
{
    return root ? root->toString(out, strict, status, version) : VySmil::RESULT_UNUSABLE;
}
