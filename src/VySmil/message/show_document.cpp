// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_document_p.h>
#include <VySmil/message/show_treewalk_p.h>
#include <VySmil/model/vocabulary_p.h>

#include <utility>

namespace {

using VySmilPrivate::Elem;
using VySmilPrivate::SlideStep;

class DocumentWalk
{
public:
    explicit DocumentWalk(const VySmilElemBase &root)
        : m_root(root), m_hasBody(root.getSubElementCounts(VySmilPrivate::nameOf(Elem::Body)) > 0)
    {
    }

    void enter(const VySmilElemBase &elem, const VySmilElemBase *parent);
    void leave(const VySmilElemBase &elem);

    VySmilPrivate::DocumentElements found;

private:
    void enterShown(const VySmilElemBase &elem, const QString &type, Elem kind);
    void addStep(SlideStep::Kind kind, const VySmilElemBase *elem)
    {
        found.slides.back().steps.push_back({kind, elem});
    }

    const VySmilElemBase &m_root;
    const bool m_hasBody;
    // The top of what is not shown: beside the bodies, or in a "switch" but the first.
    const VySmilElemBase *m_hidden = nullptr;
    std::vector<const VySmilElemBase *> m_switches; // that are walked
    std::vector<const VySmilElemBase *> m_open;     // the containers of the slide that is walked
};

void DocumentWalk::enter(const VySmilElemBase &elem, const VySmilElemBase *parent)
{
    const QString type = elem.getElemType();
    const Elem kind = VySmilPrivate::elemOf(type);
    if (kind == Elem::Region)
        found.regions.push_back(&elem);
    else if (kind == Elem::RootLayout && !found.rootLayout)
        found.rootLayout = &elem;
    if (m_hidden)
        return;
    const bool isBesideBodies = parent == &m_root && m_hasBody && kind != Elem::Body;
    const bool isPassedOver = parent && !m_switches.empty() && parent == m_switches.back() &&
                              parent->getSubElements()->at(0) != &elem;
    if (isBesideBodies || isPassedOver) {
        m_hidden = &elem;
        return;
    }
    if (kind == Elem::Unknown && type == QLatin1String("switch"))
        m_switches.push_back(&elem);
    if (parent)
        enterShown(elem, type, kind);
}

void DocumentWalk::enterShown(const VySmilElemBase &elem, const QString &type, Elem kind)
{
    const bool isMedium = VySmilPrivate::mediumKindOf(kind) != VySmilPrivate::MediumKind::None;
    if (m_open.empty()) {
        if (kind != Elem::Par && !isMedium)
            return;
        found.slides.push_back({&elem, kind == Elem::Par, {}});
        if (isMedium)
            addStep(SlideStep::Kind::Medium, &elem);
        else
            m_open.push_back(&elem);
    } else if (isMedium) {
        addStep(SlideStep::Kind::Medium, &elem);
    } else if (kind == Elem::Par || type == VySmilPrivate::sequenceName) {
        addStep(kind == Elem::Par ? SlideStep::Kind::Par : SlideStep::Kind::Sequence, &elem);
        m_open.push_back(&elem);
    }
}

void DocumentWalk::leave(const VySmilElemBase &elem)
{
    if (m_hidden == &elem)
        m_hidden = nullptr;
    if (!m_switches.empty() && m_switches.back() == &elem)
        m_switches.pop_back();
    if (m_open.empty() || m_open.back() != &elem)
        return;
    m_open.pop_back();
    if (!m_open.empty())
        addStep(SlideStep::Kind::End, nullptr);
}

} // namespace

VySmilPrivate::DocumentElements VySmilPrivate::elementsOf(const VySmilElemBase &root)
{
    DocumentWalk walk(root);
    const auto enter = [&walk](const VySmilElemBase &elem, const VySmilElemBase *parent) {
        walk.enter(elem, parent);
    };
    walkTree(root, enter, [&walk](const VySmilElemBase &elem) { walk.leave(elem); });
    return std::move(walk.found);
}
