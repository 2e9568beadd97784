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
    const QMimeDatabase types;
    QString smilFile;
    if (!chosen.isDir())
        smilFile = chosen.absoluteFilePath();
    const auto files = folder.entryInfoList(QDir::Files | QDir::NoSymLinks, QDir::Name);
    for (const QFileInfo &file : files) {
        VySmilPart part;
        part.contentId = part.contentLocation = part.name = file.fileName();
        part.contentType = types.mimeTypeForFile(file).name();
        if (file.absoluteFilePath() == smilFile)
            part.contentType = QStringLiteral("application/smil");
        else if (smilFile.isEmpty() && part.isSmil())
            smilFile = file.absoluteFilePath();
        m_parts << part;
        m_files << file.absoluteFilePath();
    }
    m_name = plain(folder.dirName());
    read(smilFile, !chosen.isDir());

    m_attachments = m_slideShow.unusedParts;
    for (const VySmilSlide &slide : m_slideShow.slides) {
        for (const VySmilMedium &medium : slide.media) {
            if (medium.kind == VySmilMedium::MEDIUM_OTHER && medium.part >= 0 && medium.rect.isEmpty())
                m_attachments << medium.part;
        }
    }
}

void Message::read(const QString &smilFile, bool isChosen)
{
    QFile file(smilFile);
    VySmilElemSmil root;
    if (smilFile.isEmpty()) {
        m_notes << tr("There is no SMIL document: these are the files in their order.");
    } else if (!file.open(QIODevice::ReadOnly)) {
        m_notes << plain(file.errorString());
    } else if (file.size() > longestDocument) {
        m_notes << tr("The SMIL document is too long.");
    } else {
        const QString text = VySmilText::decode(file.readAll());
        const VySmilTextFault fault = VySmilText::explain(text);
        if (fault.reason != VySmilTextFault::FAULT_NONE)
            m_notes << fault.toString();
        if (VySmilParser::parse(VySmilText::mend(text), &root) == VySmil::RESULT_OK) {
            const auto level = VySmilConformance::LEVEL_RELAXED;
            const QList<VySmilFinding> findings = VySmilConformance::check(root, level, m_parts);
            for (const VySmilFinding &finding : findings)
                m_notes << finding.toString();
            m_slideShow.fromTree(root, m_parts);
            return;
        }
    }
    if (!isChosen)
        m_slideShow.fromParts(m_parts);
}

QString Message::text(int part) const
{
    QFile file(fileOf(part));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return VySmilText::decode(file.read(longestText));
}

QUrl Message::recording(int part) const
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(fileOf(part), QMimeDatabase::MatchContent);
    if (!type.isValid() || type.inherits(QStringLiteral("text/plain")))
        return {};
    return QUrl::fromLocalFile(fileOf(part));
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
