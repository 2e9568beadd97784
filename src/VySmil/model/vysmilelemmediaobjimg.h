// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMMEDIAOBJIMG_H
#define VYSMIL_VYSMILELEMMEDIAOBJIMG_H

#include <VySmil/model/vysmilelemmediaobj.h>

/// The media object "img": a picture.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemMediaObjImg : public VySmilElemMediaObj
{
public:
    VySmilElemMediaObjImg();
    ~VySmilElemMediaObjImg() override;

    [[nodiscard]] QString getElemType() const override;
};

#endif
