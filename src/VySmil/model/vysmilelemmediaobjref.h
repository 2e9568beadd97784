// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMMEDIAOBJREF_H
#define VYSMIL_VYSMILELEMMEDIAOBJREF_H

#include <VySmil/model/vysmilelemmediaobj.h>

/// The media object "ref": media of any kind.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemMediaObjRef : public VySmilElemMediaObj
{
public:
    VySmilElemMediaObjRef();
    ~VySmilElemMediaObjRef() override;

    [[nodiscard]] QString getElemType() const override;
};

#endif
