// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_READTEXT_H
#define VYSMIL_TOOLS_READTEXT_H

#include <QFile>
#include <QRegularExpression>
#include <QStringConverter>

#include <cstdio>
#include <optional>

/// The text of an XML document: by its byte order mark, else by the encoding that it declares, else UTF-8.
inline QString decodeXml(const QByteArray &bytes)
{
    std::optional<QStringConverter::Encoding> encoding = QStringConverter::encodingForData(bytes, u'<');
    if (!encoding) {
        static const QRegularExpression declaration(
            QStringLiteral("^<\\?xml[^>]*encoding\\s*=\\s*[\"']([^\"']+)"));
        const auto match = declaration.match(QString::fromLatin1(bytes.left(200)));
        if (match.hasMatch())
            encoding = QStringConverter::encodingForName(match.captured(1).toLatin1().constData());
    }
    return QStringDecoder(encoding.value_or(QStringConverter::Utf8)).decode(bytes);
}

/// The text of the file \a path, or of standard input for "-". Nothing, with \a error set, if it cannot be
/// read.
inline std::optional<QString> readText(const QString &path, QString &error)
{
    QFile file(path);
    const bool opened = path == u'-' ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    const QByteArray bytes = opened ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        error = file.errorString();
        return std::nullopt;
    }
    return decodeXml(bytes);
}

#endif
