// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_REFERENCE_P_H
#define VYSMIL_REFERENCE_P_H

#include <VySmil/parser/textcursor_p.h>

namespace VySmilPrivate {

/// What the reference that comes next stands for: the character of one of the five entities of XML, or the
/// number that it gives, which may be that of no character. Goes behind it; where there is none, stays and
/// gives 0.
char32_t readReference(TextCursor &text);

/// Whether XML 1.0 can carry a character.
constexpr bool isXmlCharacter(char32_t c)
{
    return (c >= U' ' && c < 0xd800) || c == U'\n' || c == U'\t' || c == U'\r' ||
           (c >= 0xe000 && c < 0xfffe) || (c >= 0x10000 && c < 0x110000);
}

} // namespace VySmilPrivate

#endif
