// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_CHECK_PATH_P_H
#define VYSMIL_CHECK_PATH_P_H

#include <QString>

#include <vector>

class VySmilElemBase;

namespace VySmilPrivate {

/// The steps from the root to the element that is looked at.
class Path
{
public:
    void enter(const VySmilElemBase &elem);
    void leave() { m_steps.pop_back(); }

    /// "body/par[2]/img"; "smil" for the root. Only the last steps are told, so that the paths of a deep tree
    /// do not outgrow it.
    QString text();

private:
    struct Step
    {
        const VySmilElemBase *elem;
        std::size_t position;          // among its siblings
        std::size_t entered;           // how many of its children were
        std::vector<int> childNumbers; // made when a finding needs them
    };
    std::vector<Step> m_steps;
};

} // namespace VySmilPrivate

#endif
