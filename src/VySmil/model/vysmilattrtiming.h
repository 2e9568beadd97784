// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILATTRTIMING_H
#define VYSMIL_VYSMILATTRTIMING_H

#include <VySmil/model/vysmil.h>
#include <VySmil/model/vysmilattrbase.h>

/// The attributes "begin", "end" and "dur" (W3C SMIL 2.0, Timing and Synchronization).
class VYSMIL_EXPORT VySmilAttrTiming : public VySmilAttrBase
{
public:
    explicit VySmilAttrTiming(VySmilElemBase *elem);

    /// Whether \a name belongs to the group, under any version.
    bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const;
};

#endif
