// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/check_subjects_p.h>
#include <VySmil/model/attributeview_p.h>

namespace VySmilPrivate {

void checkUnknown(const QString &type, Report &report)
{
    report.add(Found::UnknownElement);
    const Elem meant = elemOf(type.trimmed().toLower());
    if (meant != Elem::Unknown)
        report.add(Found::LetterCase, nameOf(meant));
}

// Elements outside of the vocabulary may hold anything, since nobody knows what they are.
void checkPlace(Elem name, const QString &type, const Surroundings &around, Report &report)
{
    const bool isSequence = type == sequenceName;
    if (around.parent == Elem::Unknown || (name == Elem::Unknown && !isSequence))
        return;
    if (isSequence || !mayHold(around.parent, name)) {
        report.add(Found::Misplaced, nameOf(around.parent));
        return;
    }
    if (around.countOf(name) >= mostOf(name))
        report.add(Found::OneTooMany);
    else if (name == Elem::Head && around.countOf(Elem::Body) > 0)
        report.add(Found::BehindBody);
    else if (name == Elem::RootLayout && around.countOf(Elem::Region) > 0)
        report.add(Found::BehindRegion);
}

void checkRoot(const VySmilElemBase &root, const DocumentFacts &document, Report &report)
{
    if (document.slides().empty())
        report.add(Found::NothingToShow);
    if (root.getSubElementCounts(nameOf(Elem::Body)) == 0)
        report.add(Found::NoBody);
}

void checkContent(const VySmilElemBase &par, const DocumentFacts &document, Report &report)
{
    if (!document.holdsMedia(par))
        report.add(Found::NoMedia);
}

void checkAttributes(const VySmilElemBase &elem, Elem name, Report &report)
{
    for (const auto &[attribute, value] : AttributeView(elem)) {
        const QString text = value.trimmed();
        if (text.isEmpty())
            continue;
        const Attr attr = attrOf(attribute);
        if (!takes(name, attr)) {
            if (!QStringView(attribute).trimmed().isEmpty())
                report.add(Found::UnknownAttribute, attribute, nameOf(name));
        } else if (valueKindOf(attr) == ValueKind::Length) {
            checkLength(attr, text, report);
        } else if (valueKindOf(attr) == ValueKind::Time) {
            checkTime(name, attr, text, report);
        }
    }
}

} // namespace VySmilPrivate
