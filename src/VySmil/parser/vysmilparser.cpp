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
    QString document = text.trimmed();
    if (!root || document.isEmpty())
        return VySmil::RESULT_UNUSABLE;
    root->clearSubElements();
    if (const qsizetype start = document.indexOf(QLatin1String("<smil")); start > 0)
        document.remove(0, start);

    if (!VySmilPrivate::isWithinBounds(document, MAX_DEPTH, MAX_ATTRIBUTES))
        return VySmil::RESULT_MALFORMED;
    QDomDocument dom;
    if (!dom.setContent(document))
        return VySmil::RESULT_MALFORMED;
    return root->fromDomElem(dom.documentElement(), strict, status, version);
}

int VySmilParser::assemble(const VySmilElemSmil *root, QString &out, bool strict, VySmil::STATUS_CODE *status,
                           VySmil::SMIL_VERSION version)
{
    return root ? root->toString(out, strict, status, version) : VySmil::RESULT_UNUSABLE;
}
