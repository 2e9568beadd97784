// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef PLAYER_MESSAGE_H
#define PLAYER_MESSAGE_H

#include <VySmil/VySmil>

#include <QObject>
#include <QQuickImageProvider>
#include <QStringList>
#include <QUrl>

/// A message in a folder, each file a part of it, as QML sees it.
class Message : public QObject
{
    Q_OBJECT
    Q_PROPERTY(VySmilSlideShow slideShow MEMBER m_slideShow CONSTANT)
    Q_PROPERTY(QList<VySmilPart> parts MEMBER m_parts CONSTANT)
    Q_PROPERTY(QList<int> attachments MEMBER m_attachments CONSTANT)
    Q_PROPERTY(QStringList notes MEMBER m_notes CONSTANT)

public:
    /// Lets QML know the values of the library; once, before the first message.
    static void registerTypes();

    /// Opens the folder \a path, or the SMIL document \a path with the files beside it. Links are not
    /// followed. Without a document that can be read, the slides show the files, and a note says why.
    explicit Message(const QString &path);

    /// The file of a part; empty if there is no such part.
    [[nodiscard]] QString fileOf(int part) const { return m_files.value(part); }
    /// What a text says, or the first 16 KiB of it.
    [[nodiscard]] Q_INVOKABLE QString text(int part) const;
    /// The address of a sound or video; empty for what could lead a player elsewhere, as lists of addresses
    /// do.
    [[nodiscard]] Q_INVOKABLE QUrl recording(int part) const;
    /// One line without control characters, of what a stranger wrote.
    [[nodiscard]] Q_INVOKABLE static QString plain(const QString &text);

private:
    bool read(const QString &smilFile);

    VySmilElemSmil m_root; // the slides point into it
    VySmilSlideShow m_slideShow;
    QList<VySmilPart> m_parts;
    QStringList m_files;      // of the parts, in their order
    QList<int> m_attachments; // parts that no slide has a place for
    QStringList m_notes;      // what is wrong with the message
};

/// Gives QML the pictures of a message as "image://parts/INDEX", by what they hold, whatever they are called.
class Pictures : public QQuickImageProvider
{
public:
    explicit Pictures(const Message &message) : QQuickImageProvider(Image), m_message(message) {}
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    const Message &m_message;
};

#endif
