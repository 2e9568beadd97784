// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_PROGRAM_H
#define VYSMIL_TESTS_PROGRAM_H

#include <QDir>
#include <QFile>
#include <QProcess>

/// What a program left behind.
struct Said
{
    int exitCode; ///< -1 if it crashed or did not end
    QByteArray output;
    QByteArray errors;
};

/// Runs the program that is tested, in \a dir, with \a input on its standard input.
inline Said run(const QStringList &arguments, const QByteArray &input = QByteArray(),
                const QString &dir = QString())
{
    QProcess process;
    // The poorest of all locales makes no difference.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(dir);
    process.start(PROGRAM, arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(100'000) && process.exitStatus() == QProcess::NormalExit;
    const QByteArray output = process.readAllStandardOutput();
    return {ended ? process.exitCode() : -1, output, process.readAllStandardError()};
}

/// Writes a file, in a folder that is made for it.
inline bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) && QDir().mkpath(QFileInfo(path).path()))
        file.open(QIODevice::WriteOnly);
    return file.write(content) == content.size();
}

inline const QByteArray cleanDocument = "<smil><body><par dur='5ms'><audio src='a'/></par></body></smil>";

#endif
