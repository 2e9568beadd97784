// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILATTRCOMMON_H
#define VYSMIL_VYSMILATTRCOMMON_H

#include <VySmil/model/vysmilattrbase.h>
#include <VySmil/vysmil.h>

/// The attribute "id", which names an element.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilAttrCommon : public VySmilAttrBase
{
public:
    /// The group of \a elem.
    explicit VySmilAttrCommon(VySmilElemBase *elem) noexcept;
    ~VySmilAttrCommon() override;

    /// Whether \a name belongs to the group, under any version.
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const noexcept;

    /// The identifier, empty if there is none.
    [[nodiscard]] QString getId() const;
    /// Stores \a id unchanged.
    void setId(const QString &id);
};

#endif
