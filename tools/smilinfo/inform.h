// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_INFORM_H
#define VYSMIL_TOOLS_INFORM_H

#include "../message.h"

#include <QJsonObject>
#include <QTextStream>

#include <optional>

/// What was asked for.
struct Wishes
{
    bool rewrite = false;
    bool mend = false; ///< what is written anew, too
    bool slides = false;
    bool json = false;
    std::optional<VySmilConformance::CONFORMANCE_LEVEL> level; ///< of the check, if there is to be one
};

/// A document that was read, and what was found out about it.
struct Document
{
    Message message;
    VySmilSlideShow slides;        ///< if they were asked for
    QList<VySmilFinding> findings; ///< of the check, if there was one
};

/// "#rrggbb", or "transparent".
QString colorName(const QColor &color);

/// What was asked for, as lines.
void printText(QTextStream &out, const Document &document, const Wishes &wishes);

/// All that is known, as one object.
QJsonObject toJson(const Document &document, const Wishes &wishes);
/// Why nothing is known, as one object.
QJsonObject errorToJson(const QString &path, const QString &error);
/// On a line of its own.
void printJson(QTextStream &out, const QJsonObject &object);

#endif
