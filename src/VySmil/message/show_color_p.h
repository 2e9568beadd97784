// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOW_COLOR_P_H
#define VYSMIL_SHOW_COLOR_P_H

#include <QColor>

class VySmilElemBase;

namespace VySmilPrivate {

/// The background of a root layout or region, by the attribute of SMIL 2.0 or else that of SMIL 1.0; invalid
/// where neither says a colour.
QColor backgroundOf(const VySmilElemBase &elem);

/// The colour of a text, by the parameter that phones write below it; invalid where it says none.
QColor foregroundOf(const VySmilElemBase &text);

} // namespace VySmilPrivate

#endif
