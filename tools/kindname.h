// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_KINDNAME_H
#define VYSMIL_TOOLS_KINDNAME_H

#include <VySmil/message/vysmilmedium.h>

/// "image", "text", "audio", "video" or "other".
inline QString kindName(VySmilMedium::MEDIUM_KIND kind)
{
    static const char *const names[] = {"image", "text", "audio", "video", "other"};
    return QString::fromLatin1(names[kind]);
}

#endif
