// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_PICTURE_H
#define VYSMIL_TOOLS_PICTURE_H

#include <QByteArray>
#include <QImageIOHandler>
#include <QSize>

#include <optional>

/// A photograph or drawing that can be embedded: PNG, JPEG, GIF, BMP or WebP.
struct Picture
{
    QByteArray bytes;
    QString mimeType;
    QSize stored; ///< in pixels, as the bytes hold it
    QImageIOHandler::Transformations turned = QImageIOHandler::TransformationNone; ///< how it is to be seen

    /// In pixels, as it is seen.
    QSize size() const;
};

/// The picture that \a bytes are, told by what they hold; nothing if they are none, or one that is too large
/// to be shown. Its pixels are not looked at.
std::optional<Picture> pictureOf(const QByteArray &bytes);

#endif
