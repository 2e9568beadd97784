// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILBASE_H
#define VYSMIL_VYSMILBASE_H

#include <VySmil/vysmil_export.h>

/// Root class of elements and attribute groups: any object of the model can be deleted through it.
class VYSMIL_EXPORT VySmilBase
{
public:
    VySmilBase() noexcept;
    virtual ~VySmilBase();

protected:
    /// Derived classes say whether they can be copied.
    VySmilBase(const VySmilBase &other) noexcept;
    /// Derived classes say whether they can be assigned.
    VySmilBase &operator=(const VySmilBase &other) noexcept;
};

#endif
