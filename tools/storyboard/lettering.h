// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_LETTERING_H
#define VYSMIL_TOOLS_LETTERING_H

#include <QList>
#include <QString>

/// One line of a text, and which way it runs.
struct Line
{
    QString text;
    bool isRightToLeft = false;
};

/// About how wide \a text gets in the common fonts, in pixels of the picture.
double widthOf(const QString &text);

/// \a text in one line, with "…" in the middle where it is wider than \a width: file names tell apart by
/// their ends. Its direction does not touch what is written beside it, and controls are shown as escapes.
/// Costs what is seen, however long the text is.
QString elided(const QString &text, double width);

/// \a text in at most \a maxLines lines of \a width, broken between words where they fit; "…" stands for the
/// rest. Costs what is seen, however long the text is.
QList<Line> wrapped(const QString &text, double width, int maxLines);

#endif
