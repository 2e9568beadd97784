// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/check_subjects_p.h>
#include <VySmil/message/show_treewalk_p.h>
#include <VySmil/message/vysmilconformance.h>
#include <VySmil/model/vysmilelemsmil.h>

namespace {

using VySmilPrivate::Elem;

// Takes each element of a document to the checks that are about it.
class Checker
{
public:
    Checker(const VySmilElemSmil &root, bool isStrict, const QList<VySmilPart> &parts)
        : m_report(isStrict), m_document(root, parts), m_slides(m_document)
    {
    }

    void enter(const VySmilElemBase &elem);
    void leave();
    QList<VySmilFinding> findings() && { return std::move(m_report.findings); }

private:
    void checkPlace(const VySmilElemBase &elem, Elem name, const QString &type);
    void checkKnown(const VySmilElemBase &elem, Elem name);

    VySmilPrivate::Report m_report;
    const VySmilPrivate::DocumentFacts m_document;
    VySmilPrivate::SlideFacts m_slides;
    VySmilPrivate::Path m_path;
    std::vector<VySmilPrivate::Surroundings> m_open; // of each element on the path, for its children
};

void Checker::enter(const VySmilElemBase &elem)
{
    const QString type = elem.getElemType();
    const Elem name = VySmilPrivate::elemOf(type);
    m_path.enter(elem);
    m_slides.enter(elem);
    checkPlace(elem, name, type);
    if (name == Elem::Unknown)
        VySmilPrivate::checkUnknown(type, m_report);
    else
        checkKnown(elem, name);
    m_report.finish(elem, m_path);
    m_open.push_back({name});
}

void Checker::leave()
{
    m_path.leave();
    m_open.pop_back();
}

void Checker::checkPlace(const VySmilElemBase &elem, Elem name, const QString &type)
{
    if (m_open.empty()) {
        VySmilPrivate::checkRoot(elem, m_document, m_report);
        return;
    }
    VySmilPrivate::checkPlace(name, type, m_open.back(), m_report);
    ++m_open.back().countOf(name);
}

void Checker::checkKnown(const VySmilElemBase &elem, Elem name)
{
    VySmilPrivate::checkAttributes(elem, name, m_report);
    if (name == Elem::Par) {
        VySmilPrivate::checkContent(elem, m_document, m_report);
        VySmilPrivate::checkDuration(elem, m_report);
    } else if (name == Elem::RootLayout) {
        VySmilPrivate::checkRootLayout(elem, m_report);
    } else if (name == Elem::Region) {
        VySmilPrivate::checkRegion(elem, m_document, m_report);
    } else if (VySmilPrivate::mediumKindOf(name) != VySmilPrivate::MediumKind::None) {
        VySmilPrivate::checkMedium(m_slides.medium(elem, name), m_document, m_report);
    }
}

} // namespace

QList<VySmilFinding> VySmilConformance::check(const VySmilElemSmil &root, CONFORMANCE_LEVEL level,
                                              const QList<VySmilPart> &parts)
{
    Checker checker(root, level == LEVEL_STRICT, parts);
    const auto enter = [&checker](const VySmilElemBase &elem, const VySmilElemBase *) {
        checker.enter(elem);
    };
    VySmilPrivate::walkTree(root, enter, [&checker](const VySmilElemBase &) { checker.leave(); });
    return std::move(checker).findings();
}
