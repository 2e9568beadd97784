// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_ATTRIBUTEVIEW_P_H
#define VYSMIL_ATTRIBUTEVIEW_P_H

#include <VySmil/model/vysmilelembase.h>

namespace VySmilPrivate {

/// The attributes of an element in ascending order of their names, as getAttributes() has them, without the
/// copy that this makes.
class AttributeView
{
public:
    explicit AttributeView(const VySmilElemBase &elem) noexcept : m_attributes(elem.attributes) {}

    auto begin() const noexcept { return m_attributes.cbegin(); }
    auto end() const noexcept { return m_attributes.cend(); }

private:
    const QList<std::pair<QString, QString>> &m_attributes;
};

} // namespace VySmilPrivate

#endif
