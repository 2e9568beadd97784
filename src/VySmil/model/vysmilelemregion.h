// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMREGION_H
#define VYSMIL_VYSMILELEMREGION_H

#include <VySmil/model/vysmilattrcommon.h>
#include <VySmil/model/vysmilelembase.h>

/// A "region": a named part of the picture that media objects are shown in (W3C SMIL 2.0, Layout).
///
/// Accepts "left", "top", "height", "width", "fit" and "id".
class VYSMIL_EXPORT VySmilElemRegion : public VySmilElemBase
{
public:
    VySmilElemRegion();
    ~VySmilElemRegion() override;

    QString getElemType() const override;
    bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;

    /// The group with the identifier; owned by the element.
    VySmilAttrCommon *getCommonAttrsProxy() { return &commonAttrsProxy; }
    const VySmilAttrCommon *getCommonAttrsProxy() const { return &commonAttrsProxy; }

private:
    VySmilAttrCommon commonAttrsProxy;
};

#endif
