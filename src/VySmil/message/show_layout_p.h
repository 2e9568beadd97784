// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOW_LAYOUT_P_H
#define VYSMIL_SHOW_LAYOUT_P_H

#include <VySmil/message/show_document_p.h>
#include <VySmil/message/vysmilmedium.h>
#include <VySmil/model/vocabulary_p.h>
#include <VySmil/values/vylength.h>

#include <QHash>

#include <optional>

namespace VySmilPrivate {

/// The names of regions that phones know: that of pictures and videos, and that of texts.
inline constexpr QLatin1String imageRegion("Image");
inline constexpr QLatin1String textRegion("Text");

/// A region that has something left within the root layout.
struct Region
{
    QRect rect; ///< what of it lies within the root layout
    QRect area; ///< all of it
    QString fit;
    QColor background;
    const VySmilElemBase *elem;
};

/// The root layout and the regions of a document.
class Layout
{
public:
    /// \a screen has usable sides.
    Layout(const DocumentElements &document, QSize screen);

    QSize size() const noexcept { return m_size; }
    /// GUESS_SIZE, with or without GUESS_SCREEN, or nothing.
    VySmilMedium::GUESSES guesses() const noexcept { return m_guesses; }
    /// The region called \a id, exactly or else in any letter case; null if there is none.
    const Region *find(const QString &id) const;

private:
    void readSize(const VySmilElemBase *rootLayout, QSize screen);
    void addRegion(const VySmilElemBase &elem);

    QSize m_size;
    VySmilMedium::GUESSES m_guesses;
    std::vector<Region> m_regions;
    QHash<QString, std::size_t> m_byId; // their numbers
    QHash<QString, std::size_t> m_byFoldedId;
};

/// The attribute as it stands; empty if it is blank.
QString textOf(const VySmilElemBase &elem, Attr attr);

/// The attribute as a length, if it reads as one.
std::optional<VySmil::VyLength> lengthOf(const VySmilElemBase &elem, Attr attr);

/// The length in pixels, where \a whole is 100 percent, cut to what counts.
double pixelsOf(const VySmil::VyLength &length, int whole) noexcept;

/// Two edges, rounded: that of a region at \a from, and the one behind \a size, which is that of the root
/// where there is no such length, or none above 0. \a whole is the length of the root in pixels.
struct Edges
{
    int first;
    int second;
};
Edges edgesOf(const std::optional<VySmil::VyLength> &from, const std::optional<VySmil::VyLength> &size,
              int whole) noexcept;

/// To the nearest whole number, half up, within what a length may be twice.
int rounded(double number) noexcept;

} // namespace VySmilPrivate

#endif
