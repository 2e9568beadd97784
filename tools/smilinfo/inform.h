// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_INFORM_H
#define VYSMIL_TOOLS_INFORM_H

#include <VySmil/VySmil>

#include <QJsonObject>
#include <QTextStream>

#include <optional>

/// What was asked for.
struct Wishes
{
    bool strict = false;
    bool rewrite = false;
    bool slides = false;
    bool json = false;
    std::optional<VySmilConformance::CONFORMANCE_LEVEL> level; ///< of the check, if there is to be one
};

/// A document that was read.
struct Document
{
    QString path;
    VySmilElemSmil root;
    int result = VySmil::RESULT_OK;
    VySmil::STATUS_CODE status = VySmil::STATUS_OK;
    VySmilSlideShow slides;        ///< if they were asked for
    QList<VySmilFinding> findings; ///< of the check, if there was one
};

QString inWords(int result);
QString inWords(VySmil::STATUS_CODE status);
/// What kind of value the library reads an attribute of this name as.
bool holdsLength(const QString &attribute);
bool holdsTime(const QString &attribute);
/// "size", "region", "time" and "part".
QStringList namesOf(VySmilMedium::GUESSES guesses);

/// What was asked for, as lines.
void printText(QTextStream &out, const Document &document, const Wishes &wishes);

/// All that is known, as one object.
QJsonObject toJson(const Document &document);

#endif
