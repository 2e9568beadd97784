// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "contents.h"

#include "../complain.h"

#include <VySmil/parser/vysmiltext.h>

#include <QFile>
#include <QSet>

#include <algorithm>

namespace {

constexpr qint64 maxPictureSize = 2'097'152;
constexpr qint64 maxSizeOfPictures = 8 * maxPictureSize;
// More than the largest screen shows.
constexpr qint64 maxTextSize = 16'384;

} // namespace

Contents contentsOf(const VySmilSlideShow &show, const QStringList &files)
{
    Contents contents;
    QSet<int> seen;
    qint64 left = maxSizeOfPictures;
    const auto look = [&](const VySmilMedium &medium) {
        const int part = medium.part;
        if (part < 0 || part >= files.size() || medium.rect.isEmpty() || seen.contains(part))
            return;
        seen.insert(part);
        QFile file(files.at(part));
        if (!file.open(QIODevice::ReadOnly))
            return;
        if (file.size() > std::min(left, maxPictureSize)) {
            if (medium.kind == VySmilMedium::MEDIUM_IMAGE)
                complain(files.at(part), QStringLiteral("too large to be drawn: an icon stands for it"));
        } else {
            if (const auto picture = pictureOf(file.read(maxPictureSize))) {
                left -= picture->bytes.size();
                contents.pictures.insert(part, *picture);
                return;
            }
            file.seek(0);
        }
        if (medium.kind != VySmilMedium::MEDIUM_TEXT)
            return;
        const QString text = VySmilText::decode(file.read(maxTextSize));
        // A NUL is what files have that are no text.
        if (!text.contains(QChar(QChar::Null)))
            contents.texts.insert(part, text);
    };
    for (const VySmilSlide &slide : show.slides)
        std::for_each(slide.media.begin(), slide.media.end(), look);
    return contents;
}
