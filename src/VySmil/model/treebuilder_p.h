// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TREEBUILDER_P_H
#define VYSMIL_TREEBUILDER_P_H

#include <VySmil/model/vysmilelemunknown.h>

#include <QString>

#include <vector>

namespace VySmilPrivate {

/// An attribute as it stands in a document.
struct Attribute
{
    QString name;
    QString value;
};

/// Puts the attributes of a tag in ascending order of their names.
void sortByName(std::vector<Attribute> &attributes);

/// Builds what is under an element from start tags and end tags in document order, as reading does it once a
/// tag and its attributes are known, whoever reads them.
///
/// The element itself stays as it is until handOver(), so that a document which turns out to be malformed
/// leaves nothing behind.
class TreeBuilder
{
public:
    /// Tags are checked for \a root and its subtree as VySmilElemBase::fromDomElem() says.
    TreeBuilder(const VySmilElemBase &root, bool strict, VySmil::SMIL_VERSION version);

    /// The next start tag; the first is that of the root. \a attributes have names of their own, in ascending
    /// order, and lose their values. Does nothing once reading has failed.
    void startElement(QStringView tag, std::vector<Attribute> &attributes);
    /// The end of the element that was started last and not ended.
    void endElement();

    /// Adds what was complete when reading ended or failed to \a root, and the last finding to \a status
    /// unless that is null. Called once, at the end.
    ///
    /// \return what VySmilElemBase::fromDomElem() does.
    int handOver(VySmilElemBase &root, VySmil::STATUS_CODE *status);

private:
    int readTag(const VySmilElemBase &elem, VySmilElemBase &target, QStringView tag,
                std::vector<Attribute> &attributes);

    const VySmilElemBase &m_asked;        // the root, for its name and its checks
    VySmilElemUnknown m_read;             // holds the attributes and children of the root
    std::vector<VySmilElemBase *> m_path; // the open elements; null for those that are left out
    VySmil::STATUS_CODE m_found = VySmil::STATUS_OK;
    int m_result = VySmil::RESULT_OK;
    const bool m_isStrict;
    const VySmil::SMIL_VERSION m_version;
};

} // namespace VySmilPrivate

#endif
