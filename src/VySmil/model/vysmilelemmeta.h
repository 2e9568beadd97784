// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMMETA_H
#define VYSMIL_VYSMILELEMMETA_H

#include <VySmil/model/vysmilelembase.h>

/// A "meta" element: a property of the document and its content (W3C SMIL 2.0, Metainformation).
///
/// Accepts "name" and "content".
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemMeta : public VySmilElemBase
{
public:
    VySmilElemMeta();
    /// A copy of the whole tree.
    VySmilElemMeta(const VySmilElemMeta &other);
    ~VySmilElemMeta() override;

    [[nodiscard]] QString getElemType() const override;
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;

    /// The name of the property.
    [[nodiscard]] QString getName() const;
    /// Stores \a name unchanged.
    void setName(const QString &name);
    /// The value of the property. The getter is spelled like this.
    [[nodiscard]] QString getConent() const;
    /// Stores \a content unchanged.
    void setContent(const QString &content);
};

#endif
