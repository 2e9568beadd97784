// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_CHECK_FACTS_P_H
#define VYSMIL_CHECK_FACTS_P_H

#include <VySmil/message/show_document_p.h>
#include <VySmil/message/show_kind_p.h>
#include <VySmil/message/show_partindex_p.h>
#include <VySmil/message/show_slidetimes_p.h>
#include <VySmil/model/vocabulary_p.h>

#include <QHash>
#include <QSet>

#include <optional>
#include <vector>

class VySmilElemSmil;

namespace VySmilPrivate {

/// What the checks of single elements need to know of the whole document.
class DocumentFacts
{
public:
    /// \a parts outlives the facts.
    DocumentFacts(const VySmilElemSmil &root, const QList<VySmilPart> &parts);

    const QList<VySmilPart> &parts() const noexcept { return m_parts; }
    const PartIndex &index() const noexcept { return m_index; }
    const std::vector<SlideElements> &slides() const noexcept { return m_document.slides; }

    bool hasRegions() const noexcept { return !m_document.regions.empty(); }
    /// The first region called exactly \a id, or null.
    const VySmilElemBase *regionOf(const QString &id) const { return m_regions.value(id); }
    /// The sides of the root layout in pixels, where they read so and are above 0.
    std::optional<int> rootWidth() const noexcept { return m_rootWidth; }
    std::optional<int> rootHeight() const noexcept { return m_rootHeight; }

    /// Whether there is a media object below \a par, which is in the document.
    bool holdsMedia(const VySmilElemBase &par) const;

private:
    const VySmilElemBase &m_root;
    const DocumentElements m_document;
    const QList<VySmilPart> &m_parts;
    const PartIndex m_index;
    QHash<QString, const VySmilElemBase *> m_regions; // by their ids
    std::optional<int> m_rootWidth;
    std::optional<int> m_rootHeight;
    // Those without a media object right below them; made when there is one.
    mutable std::optional<QSet<const VySmilElemBase *>> m_parsWithMedia;
};

/// What a slide says of a medium of it.
struct MediumInSlide
{
    Sorts sortsTaken;           ///< of its sorts, those that media before it are of
    bool isRegionTaken = false; ///< a medium before it names the same
    MediumTimes times;
    std::optional<qint32> slideDurationMs; ///< where it is known
};

/// What the checks need to know of a media object.
struct MediumFacts
{
    const VySmilElemBase *elem;
    Elem name;
    QString src; ///< trimmed
    QString region;
    PartIndex::Match match;
    std::optional<VySmilMedium::MEDIUM_KIND> kindOfPart;
    VySmilMedium::MEDIUM_KIND kind;
    std::optional<MediumInSlide> inSlide; ///< nothing where no slide shows it
};

/// Knows the slides of a document to who walks through its elements in their order.
class SlideFacts
{
public:
    explicit SlideFacts(const DocumentFacts &document) : m_document(document) {}

    /// Notes that the walk is at \a elem.
    void enter(const VySmilElemBase &elem);
    /// The facts of \a elem, a media object called \a name that was just entered.
    MediumFacts medium(const VySmilElemBase &elem, Elem name);

private:
    MediumFacts loneMedium(const VySmilElemBase &elem, Elem name) const;
    void readSlide(const SlideElements &slide);

    const DocumentFacts &m_document;
    std::size_t m_nextSlide = 0;
    std::vector<MediumFacts> m_media; // of the slide that was entered last
    std::size_t m_nextMedium = 0;
    QHash<QString, std::size_t> m_slideOfRegion; // the last that names it, counted from 1
};

} // namespace VySmilPrivate

#endif
