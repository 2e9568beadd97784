// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "message.h"

#include <QDir>
#include <QImageReader>
#include <QMimeDatabase>
#include <QtQml>

namespace {

constexpr qint64 longestDocument = 1 << 17; // bytes; a hundred slides take a tenth of it
constexpr qint64 longestText = 1 << 14;

} // namespace

void Message::registerTypes()
{
    qmlRegisterUncreatableMetaObject(VySmilMedium::staticMetaObject, "VySmil", 1, 0, "VySmilMedium", {});
    qmlRegisterAnonymousSequentialContainer<QList<VySmilSlide>>("VySmil", 1);
    qmlRegisterAnonymousSequentialContainer<QList<VySmilMedium>>("VySmil", 1);
    qmlRegisterAnonymousSequentialContainer<QList<VySmilPart>>("VySmil", 1);
}

Message::Message(const QString &path)
{
    const QFileInfo chosen(path);
    const QDir folder(chosen.isDir() ? path : chosen.absolutePath());
    QString smilFile = chosen.isDir() ? QString() : path;
    const QMimeDatabase types;
    const auto files = folder.entryInfoList(QDir::Files | QDir::NoSymLinks, QDir::Name);
    for (const QFileInfo &file : files) {
        VySmilPart part;
        part.contentId = part.contentLocation = part.name = file.fileName();
        part.contentType =
            file == chosen ? QStringLiteral("application/smil") : types.mimeTypeForFile(file).name();
        if (smilFile.isEmpty() && part.isSmil())
            smilFile = file.filePath();
        m_parts << part;
        m_files << file.filePath();
    }
    if (!read(smilFile))
        m_slideShow.fromParts(m_parts);

    m_attachments = m_slideShow.unusedParts;
    for (const VySmilSlide &slide : m_slideShow.slides) {
        for (const VySmilMedium &medium : slide.media) {
            if (medium.kind == VySmilMedium::MEDIUM_OTHER && medium.part >= 0 && medium.rect.isEmpty())
                m_attachments << medium.part;
        }
    }
}

bool Message::read(const QString &smilFile)
{
    QFile file(smilFile);
    if (smilFile.isEmpty() || !file.open(QIODevice::ReadOnly) || file.size() > longestDocument) {
        m_notes << tr("No SMIL can be read: the files in their order.");
        return false;
    }
    const QString text = VySmilText::decode(file.readAll());
    const VySmilTextFault fault = VySmilText::explain(text);
    if (fault.reason != VySmilTextFault::FAULT_NONE)
        m_notes << fault.toString();
    if (VySmilParser::parse(VySmilText::mend(text), &m_root) != VySmil::RESULT_OK)
        return false;
    const auto findings = VySmilConformance::check(m_root, VySmilConformance::LEVEL_RELAXED, m_parts);
    for (const VySmilFinding &finding : findings)
        m_notes << finding.toString();
    return m_slideShow.fromTree(m_root, m_parts) == VySmil::RESULT_OK;
}

QString Message::text(int part) const
{
    QFile file(fileOf(part));
    return file.open(QIODevice::ReadOnly) ? VySmilText::decode(file.read(longestText)) : QString();
}

QUrl Message::recording(int part) const
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(fileOf(part), QMimeDatabase::MatchContent);
    const bool isText = !type.isValid() || type.inherits(QStringLiteral("text/plain"));
    return isText ? QUrl() : QUrl::fromLocalFile(fileOf(part));
}

QString Message::plain(const QString &text)
{
    QString line;
    const QList<uint> characters = text.left(200).toUcs4();
    for (const uint character : characters) {
        const bool isSeparator = character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
        const bool isShown = QChar::isPrint(character) && !isSeparator;
        line += QChar::fromUcs4(isShown ? character : uint(QChar::ReplacementCharacter));
    }
    return line;
}

QImage Pictures::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    // No others: a drawing (SVG) can name files and addresses of its own.
    static const QList<QByteArray> formats = {"png", "jpeg", "gif", "bmp", "webp"};
    QImageReader reader(m_message.fileOf(id.toInt()));
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!formats.contains(reader.format()))
        return {};
    if (!requestedSize.isEmpty())
        reader.setScaledSize(reader.size().scaled(requestedSize, Qt::KeepAspectRatioByExpanding));
    QImage image = reader.read();
    *size = image.size();
    return image;
}
