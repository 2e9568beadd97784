// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vysmilbase.h>

VySmilBase::VySmilBase() noexcept = default;

VySmilBase::VySmilBase(const VySmilBase &) noexcept = default;

VySmilBase &VySmilBase::operator=(const VySmilBase &) noexcept = default;

VySmilBase::~VySmilBase() = default;
