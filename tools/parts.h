// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_PARTS_H
#define VYSMIL_TOOLS_PARTS_H

#include <VySmil/message/vysmilpart.h>

#include <QStringList>

/// The files of folders as the parts of a message.
struct Parts
{
    QList<VySmilPart> list; ///< of each folder in the order of their names
    QStringList files;      ///< where each of them lies
};

/// What lies in a folder: files alone, no folders, pipes or devices, and no links that lead out of it.
struct Folder
{
    Parts parts;
    QStringList documents; ///< files whose content begins as a SMIL document
    QStringList misnomers; ///< files that are called as a SMIL document and are none
};

/// Reads the folder at \a path, and of each file in it only the first few thousand bytes. False, with \a
/// error set, if that cannot be done. Complains about what it leaves out.
bool readFolder(const QString &path, Folder &folder, QString &error);

#endif
