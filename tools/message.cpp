// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "message.h"

#include "complain.h"
#include "readtext.h"

#include <QFileInfo>

namespace {

// The one SMIL document of a folder; its content counts more than its name.
QString documentIn(const Folder &folder, QString &error)
{
    const QStringList &found = folder.documents.isEmpty() ? folder.misnomers : folder.documents;
    if (found.size() == 1)
        return found.first();
    error = found.isEmpty()
                ? QStringLiteral("no SMIL document in this folder")
                : QStringLiteral("%1 SMIL documents in this folder, where one is to be").arg(found.size());
    return QString();
}

// Why mending changed a text.
QString whatWasWrong(const QString &text)
{
    const VySmilTextFault fault = VySmilText::explain(text);
    return fault.reason == VySmilTextFault::FAULT_NONE
               ? QStringLiteral("names in the wrong letter case, or sources with line ends")
               : fault.toString();
}

} // namespace

bool readMessage(const QString &path, const Reading &reading, Message &message, QString &error)
{
    message.path = path;
    if (QFileInfo(path).isDir()) {
        Folder folder;
        if (!readFolder(path, folder, error))
            return false;
        const QString document = documentIn(folder, error);
        if (document.isEmpty())
            return false;
        message.path = document;
        message.parts = folder.parts;
    }
    message.parts.list += reading.parts.list;
    message.parts.files += reading.parts.files;

    std::optional<QString> text = readText(message.path, error);
    if (!text)
        return false;
    if (reading.mend) {
        const QString mended = VySmilText::mend(*text);
        if (mended != *text) {
            message.mended = whatWasWrong(*text);
            complain(message.path, QStringLiteral("mended: ") + message.mended);
        }
        text = mended;
    }
    message.result = VySmilParser::parse(*text, &message.root, reading.strict, &message.status);
    if (message.result == VySmil::RESULT_NO_OBJECT)
        error = QStringLiteral("out of memory");
    else if (message.result == VySmil::RESULT_UNUSABLE || message.result == VySmil::RESULT_MALFORMED)
        error = VySmilText::explain(*text).toString();
    return error.isEmpty();
}
