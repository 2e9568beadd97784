// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMMEDIAOBJAUDIO_H
#define VYSMIL_VYSMILELEMMEDIAOBJAUDIO_H

#include <VySmil/model/vysmilelemmediaobj.h>

/// The media object "audio": sound. It is not shown, so it does not accept "region".
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemMediaObjAudio : public VySmilElemMediaObj
{
public:
    VySmilElemMediaObjAudio();
    ~VySmilElemMediaObjAudio() override;

    [[nodiscard]] QString getElemType() const override;
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;
};

#endif
