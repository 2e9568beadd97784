// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILATTRMEDIA_H
#define VYSMIL_VYSMILATTRMEDIA_H

#include <VySmil/model/vysmilattrbase.h>
#include <VySmil/vysmil.h>

/// The attribute "src", which says where the media of a media object are.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilAttrMedia : public VySmilAttrBase
{
public:
    /// The group of \a elem.
    explicit VySmilAttrMedia(VySmilElemBase *elem) noexcept;
    ~VySmilAttrMedia() override;

    /// Whether \a name belongs to the group, under any version.
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const noexcept;

    /// The location of the media, empty if there is none.
    [[nodiscard]] QString getSrc() const;
    /// Stores \a src unchanged.
    void setSrc(const QString &src);
};

#endif
