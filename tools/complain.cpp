// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "complain.h"

#include "printable.h"

#include <QCoreApplication>
#include <QTextStream>

void complain(const QString &line)
{
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << printable(line) << Qt::endl;
}

void complain(const QString &path, const QString &line)
{
    complain(path + QStringLiteral(": ") + line);
}
