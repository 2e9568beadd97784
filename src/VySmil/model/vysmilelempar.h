// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMPAR_H
#define VYSMIL_VYSMILELEMPAR_H

#include <VySmil/model/vysmilattrtiming.h>
#include <VySmil/model/vysmilelembase.h>

/// A "par": one slide, whose media objects play at the same time (W3C SMIL 2.0, Timing and Synchronization).
///
/// Accepts "dur"; not "begin" and "end", though its timing group reads and writes them.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemPar : public VySmilElemBase
{
public:
    VySmilElemPar();
    ~VySmilElemPar() override;

    [[nodiscard]] QString getElemType() const override;
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;

    /// The group with begin, end and duration; owned by the element.
    [[nodiscard]] VySmilAttrTiming *getTimingAttrsProxy() noexcept { return &timingAttrsProxy; }
    /// The same to look at.
    [[nodiscard]] const VySmilAttrTiming *getTimingAttrsProxy() const noexcept { return &timingAttrsProxy; }

private:
    VySmilAttrTiming timingAttrsProxy{this};
};

#endif
