// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/vysmilpart.h>

#include <tuple>

bool VySmilPart::operator==(const VySmilPart &other) const noexcept
{
    const auto fields = [](const VySmilPart &part) {
        return std::tie(part.contentId, part.contentLocation, part.name, part.contentType, part.durationMs);
    };
    return fields(*this) == fields(other);
}
