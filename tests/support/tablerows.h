// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_TABLEROWS_H
#define VYSMIL_TESTS_TABLEROWS_H

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

/// The rows of a table that is kept in a file, a JSON array a line: a line that is none fails the test that
/// reads it.
inline QList<QJsonArray> tableRows(const QString &path)
{
    QFile file(path);
    QList<QJsonArray> rows;
    file.open(QIODevice::ReadOnly);
    for (const QByteArray &line : file.readAll().trimmed().split('\n'))
        rows << QJsonDocument::fromJson(line).array();
    return rows;
}

#endif
