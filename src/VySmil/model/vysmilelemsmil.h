// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMSMIL_H
#define VYSMIL_VYSMILELEMSMIL_H

#include <VySmil/model/vysmilelembase.h>

/// The root element "smil" of a document (W3C SMIL 2.0, Structure). Accepts no attribute.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemSmil : public VySmilElemBase
{
public:
    /// A root without children.
    VySmilElemSmil();
    /// A copy of the whole tree.
    VySmilElemSmil(const VySmilElemSmil &other);
    VySmilElemSmil &operator=(const VySmilElemSmil &) = delete;
    ~VySmilElemSmil() override;

    /// Called at the end of both constructors; does nothing.
    void init() noexcept;

    /// The first child "head", wherever it stands, or null. It can be changed, even where the root is const.
    [[nodiscard]] VySmilElemBase *getHead() const;
    /// The first child "body", likewise.
    [[nodiscard]] VySmilElemBase *getBody() const;

    [[nodiscard]] QString getElemType() const override;
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;
};

#endif
