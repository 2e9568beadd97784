// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILATTRBASE_H
#define VYSMIL_VYSMILATTRBASE_H

#include <VySmil/model/vysmilbase.h>

#include <QString>

class VySmilElemBase;

/// A group of attributes that several element classes share: a view on the attribute store of its element.
///
/// A group keeps no values and checks nothing. It does not own its element, and is valid only as long as that
/// element lives. Reading or writing through a group without an element is an error of the caller.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilAttrBase : public VySmilBase
{
public:
    /// A group without an element.
    VySmilAttrBase() noexcept;
    ~VySmilAttrBase() override;
    Q_DISABLE_COPY_MOVE(VySmilAttrBase)

    /// The element whose attributes the group reads and writes, or null.
    [[nodiscard]] VySmilElemBase *getRefElem() const noexcept { return refElem; }
    /// Makes the group a view on \a elem, which it does not own.
    void setRefElem(VySmilElemBase *elem) noexcept { refElem = elem; }

    /// The same as VySmilElemBase::getAttribute() on the element.
    [[nodiscard]] QString getAttribute(const QString &name) const;
    /// The same as VySmilElemBase::setAttribute() on the element.
    void setAttribute(const QString &name, const QString &value);
    /// The same as VySmilElemBase::rmAttribute() on the element.
    void rmAttribute(const QString &name);

private:
    VySmilElemBase *refElem = nullptr;
};

#endif
