// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_CHECK_SUBJECTS_P_H
#define VYSMIL_CHECK_SUBJECTS_P_H

#include <VySmil/message/check_facts_p.h>
#include <VySmil/message/check_report_p.h>

#include <array>

// The checks of an element. Each adds to the report what it finds of it.

namespace VySmilPrivate {

/// The parent of the element that is checked, and how many of its children before that are called what.
struct Surroundings
{
    Elem parent;
    std::array<int, static_cast<std::size_t>(Elem::Unknown) + 1> before{};

    int &countOf(Elem name) { return before[static_cast<std::size_t>(name)]; }
    int countOf(Elem name) const { return before[static_cast<std::size_t>(name)]; }
};

// check_structure.cpp

/// An element outside of the vocabulary, which is called \a type.
void checkUnknown(const QString &type, Report &report);
/// Whether the profile has an element called \a type where it stands.
void checkPlace(Elem name, const QString &type, const Surroundings &around, Report &report);
void checkRoot(const VySmilElemBase &root, const DocumentFacts &document, Report &report);
void checkContent(const VySmilElemBase &par, const DocumentFacts &document, Report &report);
/// The names of the attributes, and the form of what they hold.
void checkAttributes(const VySmilElemBase &elem, Elem name, Report &report);

// check_regions.cpp

/// \a text is the value of \a attr, trimmed, and not empty.
void checkLength(Attr attr, const QString &text, Report &report);
void checkRootLayout(const VySmilElemBase &rootLayout, Report &report);
void checkRegion(const VySmilElemBase &region, const DocumentFacts &document, Report &report);

// check_times.cpp

/// \a text is the value of \a attr of an element called \a name, trimmed, and not empty.
void checkTime(Elem name, Attr attr, const QString &text, Report &report);
void checkDuration(const VySmilElemBase &par, Report &report);

// check_media.cpp

void checkMedium(const MediumFacts &medium, const DocumentFacts &document, Report &report);

} // namespace VySmilPrivate

#endif
