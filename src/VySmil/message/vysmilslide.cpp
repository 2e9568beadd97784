// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/vysmilslide.h>

#include <algorithm>

QList<qint32> VySmilSlide::instants() const
{
    QList<qint32> all{0, durationMs};
    for (const VySmilMedium &medium : media)
        all << medium.beginMs << medium.endMs;
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all;
}

QList<int> VySmilSlide::mediaAt(qint32 ms) const
{
    QList<int> found;
    for (int i = 0; i < media.size(); ++i) {
        if (media.at(i).beginMs <= ms && ms < media.at(i).endMs)
            found << i;
    }
    return found;
}
