// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_COMMANDLINE_H
#define VYSMIL_TOOLS_COMMANDLINE_H

#include "message.h"

#include <QCommandLineParser>

/// Lets the system and Qt speak English in UTF-8, whatever the locale is. Called before the application is
/// made: under another locale Qt 6.8 complains.
void usePlainLocale();

/// Adds the options about reading, and those for help and version.
void addCommonOptions(QCommandLineParser &parser);

/// Reads the arguments. Help, a version and an unknown option end the program, the latter with \a failure.
void processArguments(QCommandLineParser &parser, int failure);

/// What the options say about reading. A folder of parts that cannot be read is complained about, and makes
/// \a complete false.
Reading readingOf(const QCommandLineParser &parser, bool &complete);

#endif
