// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYBANDWIDTH_H
#define VYSMIL_VYBANDWIDTH_H

#include <VySmil/vysmil.h>

#include <QString>

/// A bandwidth: an unsigned whole number or an unsigned whole percentage ("64000", "50%"), as in
/// "systemBitrate" (W3C SMIL 2.0, Content Control).
///
/// A failed read leaves the kind that the text claims, NUMBER_PERCENT if it ends in "%", with the value 0.
class VYSMIL_EXPORT VySmil::VyBandWidth
{
public:
    /// Reads \a text: see above.
    int fromString(const QString &text);
    /// The text of the value, empty where there is none.
    [[nodiscard]] QString toString() const;

    NUMBER_KIND kind = NUMBER_NONE; ///< number, percentage or none
    quint32 value = 0;              ///< 50% is 50
};

Q_DECLARE_TYPEINFO(VySmil::VyBandWidth, Q_RELOCATABLE_TYPE);

#endif
