// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_CONTENTS_H
#define VYSMIL_TOOLS_CONTENTS_H

#include "picture.h"

#include <VySmil/message/vysmilslideshow.h>

#include <QHash>

/// What the parts hold that slides show, by the index of the part: pictures of up to 2 MiB each and 16 MiB in
/// all, and the beginnings of texts. Of what is larger, or is something else, nothing is known.
struct Contents
{
    QHash<int, Picture> pictures;
    QHash<int, QString> texts;
};

/// Reads what \a show shows of the parts that lie in \a files.
Contents contentsOf(const VySmilSlideShow &show, const QStringList &files);

#endif
