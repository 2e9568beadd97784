// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILATTRTIMING_H
#define VYSMIL_VYSMILATTRTIMING_H

#include <VySmil/model/vysmilattrbase.h>
#include <VySmil/time/vytime.h>
#include <VySmil/vysmil.h>

/// The attributes "begin", "end" and "dur" (W3C SMIL 2.0, Timing and Synchronization).
///
/// A typed getter gives what reading the stored text leaves, without a word if that text does not read, and
/// the empty value for an absent attribute. A typed setter stores the printed text, an empty one for an empty
/// value.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilAttrTiming : public VySmilAttrBase
{
public:
    /// The group of \a elem.
    explicit VySmilAttrTiming(VySmilElemBase *elem) noexcept;
    ~VySmilAttrTiming() override;

    /// Whether \a name belongs to the group, under any version.
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const noexcept;

    /// When the element begins.
    [[nodiscard]] VySmil::VyTime getBegin() const;
    /// Stores the text of \a time.
    void setBegin(const VySmil::VyTime &time);
    /// When the element ends at the latest.
    [[nodiscard]] VySmil::VyTime getEnd() const;
    /// Stores the text of \a time.
    void setEnd(const VySmil::VyTime &time);
    /// How long the element lasts.
    [[nodiscard]] VySmil::VyTime getDur() const;
    /// Stores the text of \a time.
    void setDur(const VySmil::VyTime &time);
};

#endif
