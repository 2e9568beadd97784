// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/mediumkind_p.h>
#include <VySmil/message/slidewalk_p.h>
#include <VySmil/message/treewalk_p.h>

namespace {

// An element of a slide whose media play together, or in a "seq" one after the other.
struct Container
{
    const VySmilElemBase *elem;
    bool isSequence;
    int before; // index of the medium behind which the next one begins, or -1
    int first;  // index of the first medium in it
};

class SlideWalk
{
public:
    std::vector<VySmilPrivate::SlideElements> slides;

    void walk(const VySmilElemBase &top)
    {
        const auto onEnter = [this](const VySmilElemBase &elem, const VySmilElemBase *parent) {
            return enter(elem, parent);
        };
        VySmilPrivate::walkTree(top, onEnter, [this](const VySmilElemBase &elem) { leave(elem); });
    }

private:
    bool enter(const VySmilElemBase &elem, const VySmilElemBase *parent);
    void leave(const VySmilElemBase &elem);
    int mediaCount() const { return static_cast<int>(slides.back().media.size()); }

    std::vector<Container> open; // of the slide that is being walked; empty outside of slides
};

bool SlideWalk::enter(const VySmilElemBase &elem, const VySmilElemBase *parent)
{
    if (parent && parent->getElemType() == QLatin1String("switch") &&
        parent->getSubElements()->at(0) != &elem)
        return false;
    const QString type = elem.getElemType();
    const bool isMedium = VySmilPrivate::kindOfElement(type).has_value();
    if (open.empty()) {
        if (type == QLatin1String("par")) {
            slides.push_back({&elem, {}});
            open.push_back({&elem, false, -1, 0});
        } else if (isMedium) {
            slides.push_back({&elem, {{&elem, -1}}});
        }
        return true;
    }
    Container &in = open.back();
    if (isMedium) {
        slides.back().media.push_back({&elem, in.before});
        if (in.isSequence)
            in.before = mediaCount() - 1;
    } else if (type == QLatin1String("par") || type == QLatin1String("seq")) {
        open.push_back({&elem, type == QLatin1String("seq"), in.before, mediaCount()});
    }
    return true;
}

void SlideWalk::leave(const VySmilElemBase &elem)
{
    if (open.empty() || open.back().elem != &elem)
        return;
    const int first = open.back().first;
    open.pop_back();
    if (!open.empty() && open.back().isSequence && mediaCount() > first)
        open.back().before = mediaCount() - 1;
}

} // namespace

std::vector<VySmilPrivate::SlideElements> VySmilPrivate::slidesOf(const VySmilElemBase &root)
{
    SlideWalk slideWalk;
    bool hasBody = false;
    for (const VySmilElemBase *child : *root.getSubElements()) {
        if (child->getElemType() != QLatin1String("body"))
            continue;
        hasBody = true;
        slideWalk.walk(*child);
    }
    if (!hasBody)
        slideWalk.walk(root);
    return std::move(slideWalk.slides);
}
