// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_READTEXT_H
#define VYSMIL_TESTS_READTEXT_H

#include "treetext.h"

#include <VySmil/VySmil>

/// A read document as one line: result, status and tree.
inline QString readText(const QString &text, VySmilElemSmil &root, bool strict,
                        VySmil::SMIL_VERSION version = VySmil::SMIL_VER_DEFAULT)
{
    auto status = static_cast<VySmil::STATUS_CODE>(99);
    const int result = VySmilParser::parse(text, &root, strict, &status, version);
    return QStringLiteral("%1 %2 %3").arg(result).arg(status).arg(treeText(root));
}

inline QString around(const QString &content)
{
    return "<smil>" + content + "</smil>";
}

/// The same document with a processing instruction, which is not plain: Qt reads it.
inline QString leftToQt(QString text)
{
    return text.replace("<smil>", "<smil><?x?>");
}

#endif
