// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOW_TREEWALK_P_H
#define VYSMIL_SHOW_TREEWALK_P_H

#include <VySmil/model/vysmilelembase.h>

#include <vector>

namespace VySmilPrivate {

/// Calls \a enter with \a top and each element below it in document order, and with its parent (null for \a
/// top), and \a leave behind the subtree of each. Takes no stack for depth.
template <typename Enter, typename Leave>
void walkTree(const VySmilElemBase &top, Enter enter, Leave leave)
{
    struct Step
    {
        const VySmilElemBase *elem;
        qsizetype nextChild;
    };
    enter(top, nullptr);
    std::vector<Step> path{{&top, 0}};
    while (!path.empty()) {
        const VySmilElemBase &elem = *path.back().elem;
        const VySmilElemBase *const child = elem.getSubElements()->at(path.back().nextChild++);
        if (!child) {
            path.pop_back();
            leave(elem);
        } else {
            enter(*child, &elem);
            path.push_back({child, 0});
        }
    }
}

} // namespace VySmilPrivate

#endif
