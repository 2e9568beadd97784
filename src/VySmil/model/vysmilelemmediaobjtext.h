// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMMEDIAOBJTEXT_H
#define VYSMIL_VYSMILELEMMEDIAOBJTEXT_H

#include <VySmil/model/vysmilelemmediaobj.h>

/// The media object "text": a text.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemMediaObjText : public VySmilElemMediaObj
{
public:
    VySmilElemMediaObjText();
    ~VySmilElemMediaObjText() override;

    [[nodiscard]] QString getElemType() const override;
};

#endif
