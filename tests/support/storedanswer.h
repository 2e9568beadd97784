// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_STOREDANSWER_H
#define VYSMIL_TESTS_STOREDANSWER_H

#include <QFile>
#include <QString>

/// Whether tests write the stored answers of their corpora anew instead of comparing with them:
/// scripts/renew-answers.
inline bool renewsAnswers()
{
    return qEnvironmentVariableIsSet("VYSMIL_RENEW_ANSWERS");
}

/// The text of the file \a path, empty if there is none.
inline QString storedText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Makes \a text the contents of the file \a path. False if it cannot be written.
inline bool storeText(const QString &path, const QString &text)
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

#endif
