// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TYPEDATTRIBUTE_P_H
#define VYSMIL_TYPEDATTRIBUTE_P_H

#include <QString>

namespace VySmilPrivate {

/// The attribute \a name of \a holder, an element or a group, as a value: what its text leaves when it is
/// read, whether it reads or not.
template <typename Value, typename Holder>
Value typedAttribute(const Holder &holder, const QString &name)
{
    Value value;
    value.fromString(holder.getAttribute(name));
    return value;
}

/// Stores the text of \a value under \a name.
template <typename Value, typename Holder>
void setTypedAttribute(Holder &holder, const QString &name, const Value &value)
{
    holder.setAttribute(name, value.toString());
}

} // namespace VySmilPrivate

#endif
