// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "commandline.h"

#include "complain.h"

#include <QCoreApplication>

#include <cstdlib>

void usePlainLocale()
{
    qputenv("LC_ALL", "C.UTF-8");
}

void addCommonOptions(QCommandLineParser &parser)
{
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({QStringLiteral("mend"),
                      QStringLiteral("Read what a document that is no XML, or has names in the wrong letter "
                                     "case, was meant to be.")});
    parser.addOption({QStringLiteral("parts"),
                      QStringLiteral("The files in this folder are the parts of the message; again for "
                                     "several folders."),
                      QStringLiteral("folder")});
}

void processArguments(QCommandLineParser &parser, int failure)
{
    if (!parser.parse(QCoreApplication::arguments())) {
        complain(parser.errorText());
        std::exit(failure);
    }
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();
}

Reading readingOf(const QCommandLineParser &parser, bool &complete)
{
    Reading reading;
    reading.mend = parser.isSet(QStringLiteral("mend"));
    complete = true;
    const QStringList folders = parser.values(QStringLiteral("parts"));
    for (const QString &path : folders) {
        Folder folder;
        QString error;
        if (readFolder(path, folder, error)) {
            reading.parts.list += folder.parts.list;
            reading.parts.files += folder.parts.files;
            continue;
        }
        complain(path, error);
        complete = false;
    }
    return reading;
}
