// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMBODY_H
#define VYSMIL_VYSMILELEMBODY_H

#include <VySmil/model/vysmilattrcommon.h>
#include <VySmil/model/vysmilelembase.h>

/// The "body" of a document: the slides in their order (W3C SMIL 2.0, Structure).
///
/// Under VySmil::SMIL_VER_DEFAULT it accepts no attribute, "id" included; under any other version "id" alone.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemBody : public VySmilElemBase
{
public:
    VySmilElemBody();
    ~VySmilElemBody() override;

    [[nodiscard]] QString getElemType() const override;
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;

    /// The group with the identifier; owned by the element.
    [[nodiscard]] VySmilAttrCommon *getCommonAttrsProxy() noexcept { return &commonAttrsProxy; }
    /// The same to look at.
    [[nodiscard]] const VySmilAttrCommon *getCommonAttrsProxy() const noexcept { return &commonAttrsProxy; }

private:
    VySmilAttrCommon commonAttrsProxy{this};
};

#endif
