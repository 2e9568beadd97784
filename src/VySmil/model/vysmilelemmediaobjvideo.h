// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMMEDIAOBJVIDEO_H
#define VYSMIL_VYSMILELEMMEDIAOBJVIDEO_H

#include <VySmil/model/vysmilelemmediaobj.h>

/// The media object "video": a film.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemMediaObjVideo : public VySmilElemMediaObj
{
public:
    VySmilElemMediaObjVideo();
    ~VySmilElemMediaObjVideo() override;

    [[nodiscard]] QString getElemType() const override;
};

#endif
