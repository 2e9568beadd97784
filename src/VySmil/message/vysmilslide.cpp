// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_defaults_p.h>
#include <VySmil/message/vysmilslide.h>

#include <algorithm>

qint32 VySmilSlide::endOf(const VySmilMedium &medium) const noexcept
{
    return medium.endMs >= 0 ? medium.endMs : VySmilPrivate::usableDuration(durationMs);
}

QList<qint32> VySmilSlide::instants() const
{
    QList<qint32> all{0, VySmilPrivate::usableDuration(durationMs)};
    for (const VySmilMedium &medium : media)
        all << medium.beginMs << endOf(medium);
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all;
}

QList<int> VySmilSlide::mediaAt(qint32 ms) const
{
    QList<int> found;
    for (int i = 0; i < media.size(); ++i) {
        if (media.at(i).beginMs <= ms && ms < endOf(media.at(i)))
            found << i;
    }
    return found;
}

bool VySmilSlide::operator==(const VySmilSlide &other) const noexcept
{
    return durationMs == other.durationMs && media == other.media && guesses == other.guesses;
}
