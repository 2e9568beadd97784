// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "parts.h"

#include "complain.h"

#include <VySmil/model/vysmilelemsmil.h>
#include <VySmil/parser/vysmiltext.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace {

// What tells the type of a file, and whether it is a SMIL document.
constexpr qint64 headSize = 4096;

QByteArray headOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ? file.read(headSize) : QByteArray();
}

QStringView withoutLeadingBlanks(QStringView text)
{
    const auto isBlank = [](QChar c) { return c.isSpace(); };
    return text.sliced(std::find_if_not(text.begin(), text.end(), isBlank) - text.begin());
}

// Whether the first element of a document is "smil", in any letter case.
bool beginsAsSmil(QStringView text)
{
    static constexpr QStringView prolog[][2] = {{u"<!--", u"-->"}, {u"<?", u"?>"}, {u"<!", u">"}};
    text = withoutLeadingBlanks(text);
    for (auto markup = std::begin(prolog); markup != std::end(prolog);) {
        const auto &[begin, end] = *markup;
        const qsizetype at = text.startsWith(begin) ? text.indexOf(end, begin.size()) : -1;
        if (at < 0) {
            ++markup;
            continue;
        }
        text = withoutLeadingBlanks(text.sliced(at + end.size()));
        markup = std::begin(prolog);
    }
    const QString root = u'<' + VySmilElemSmil().getElemType();
    if (!text.startsWith(root, Qt::CaseInsensitive))
        return false;
    return text.size() == root.size() || text[root.size()].isSpace() || text[root.size()] == u'/' ||
           text[root.size()] == u'>';
}

void addFile(const QFileInfo &info, const QMimeDatabase &types, Folder &folder)
{
    const QByteArray head = headOf(info.filePath());
    if (beginsAsSmil(VySmilText::decode(head))) {
        folder.documents << info.filePath();
        return;
    }
    VySmilPart part;
    part.name = part.contentLocation = part.contentId = info.fileName();
    part.contentType = types.mimeTypeForFileNameAndData(part.name, head).name();
    if (part.isSmil()) {
        folder.misnomers << info.filePath();
        return;
    }
    folder.parts.list << part;
    folder.parts.files << info.filePath();
}

// Qt passes them over.
int namesNotInUtf8(const QString &path)
{
    namespace fs = std::filesystem;
    int count = 0;
    std::error_code error;
    for (fs::directory_iterator entry(QFile::encodeName(path).toStdString(), error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        if (!QByteArray::fromStdString(entry->path().filename().native()).isValidUtf8())
            ++count;
    }
    return count;
}

} // namespace

bool readFolder(const QString &path, Folder &folder, QString &error)
{
    const QFileInfo place(path);
    if (!place.exists())
        error = QStringLiteral("there is no such folder");
    else if (!place.isDir())
        error = QStringLiteral("is no folder");
    else if (!place.isReadable() || !place.isExecutable())
        error = QStringLiteral("the folder cannot be read");
    if (!error.isEmpty())
        return false;

    QStringList names;
    QDirIterator files(path, QDir::Files | QDir::Hidden);
    while (files.hasNext()) {
        files.next();
        names << files.fileName();
    }
    std::sort(names.begin(), names.end());
    const QString canonical = place.canonicalFilePath();
    const QString inside = canonical.endsWith(u'/') ? canonical : canonical + u'/';
    const QMimeDatabase types;
    const QString beside = path.endsWith(u'/') ? path : path + u'/';
    int linksOut = 0;
    for (const QString &name : std::as_const(names)) {
        const QFileInfo info(beside + name);
        if (info.isSymLink() && !info.canonicalFilePath().startsWith(inside))
            ++linksOut;
        else if (info.isFile())
            addFile(info, types, folder);
    }
    if (linksOut > 0)
        complain(path, QStringLiteral("links that lead out of the folder are left out: %1").arg(linksOut));
    if (const int count = namesNotInUtf8(path); count > 0)
        complain(path, QStringLiteral("names that are no UTF-8 are left out: %1").arg(count));
    return true;
}
