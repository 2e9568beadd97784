// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TYPEDATTRIBUTE_P_H
#define VYSMIL_TYPEDATTRIBUTE_P_H

#include <VySmil/model/vocabulary_p.h>

namespace VySmilPrivate {

/// The attribute \a attr of \a holder, an element or a group, as a value: what its text leaves when it is
/// read, whether it reads or not.
template <typename Value, typename Holder>
Value typedAttribute(const Holder &holder, Attr attr)
{
    Value value;
    value.fromString(holder.getAttribute(nameOf(attr)));
    return value;
}

/// Stores the text of \a value as \a attr.
template <typename Value, typename Holder>
void setTypedAttribute(Holder &holder, Attr attr, const Value &value)
{
    holder.setAttribute(nameOf(attr), value.toString());
}

} // namespace VySmilPrivate

#endif
