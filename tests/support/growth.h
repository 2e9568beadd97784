// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_GROWTH_H
#define VYSMIL_TESTS_GROWTH_H

#include "messagecase.h"

#include <VySmil/VySmil>

#include <functional>
#include <utility>
#include <vector>

// What the cost of every operation must stay in proportion to: messages that are full of the smallest of one
// thing.

/// A text that grows: its beginning, a piece again and again, its end. A "%1" in the piece is the number of
/// the piece, of seven digits, and so in the part (see MessageCase) that comes with each, if one does.
struct GrowthShape
{
    QString before;
    QString piece;
    QString after;
    QString part;

    static QString repeated(const QString &piece, qsizetype pieces)
    {
        QString text;
        for (qsizetype i = 0; i < pieces; ++i)
            text += QString(piece).replace("%1", QString::number(10'000'000 + i).mid(1));
        return text;
    }

    QString name() const { return (before.right(20) + piece.left(40) + after.left(20)).simplified(); }
    QString text(qsizetype pieces) const { return before + repeated(piece, pieces) + after; }
    QString messageText(qsizetype pieces) const
    {
        return "large\n" + text(pieces) + "\n--- parts\n" + repeated(part, pieces);
    }
};

inline QList<GrowthShape> growthShapes()
{
    const QString any("<smil><body>%1</body></smil>");
    const QString body = any.arg("*");
    const QString medium = any.arg("<par><img %1/><text src='b'/></par>");
    const QString layout("<smil><head><layout>*</layout></head><body><par><img src='a' region='a'/>"
                         "<img src='b' region='r0000009'/></par></body></smil>");
    const QString region = QString(layout).replace(u'*', "<region %1/>");
    const auto nested = [](const char *open, const char *shut) {
        return QString(open).repeated(250) + "<img src='a'/>" + QString(shut).repeated(250);
    };
    const QString attributes = GrowthShape::repeated(" a%1=''", 250);

    // Where the pieces stand, and each of them, before "@" and its part.
    const QList<std::pair<QString, QStringList>> rows = {
        {body, {"&amp;", "<!---->", "<![CDATA[]]>", " ", "<par" + attributes + "/>"}},
        {"<smil><?x?><body>*</body></smil>", {"<par a=''/>"}}, // Qt reads it
        // What does not read.
        {body, {"<", "<par>", "</par>", "&a;", "<!--", "<IMG SRC='\na'/>"}},
        {"<smil><body>*", {"<par><img src=a&b>"}},
        {"<smil/>*", {"a "}},
        {"<smil */>", {"a%1='' "}},
        {"<smil *", {"a=&/' ", "nohref ", "a", "a= \"x ", "a='\u201c b=\"\u2018 "}},
        {"<smil *a=\"x", {"a= \"x "}},
        {"<smil a=\"*", {"=    \"x ", "\""}},
        {"<smil>" + nested("<a>", "") + '*', {"</b>"}},
        {"<smil>*", {"<![CDATA[", "<?", "<!DOCTYPE [", "<!DOCTYPE [ ]  "}},
        {"<smil>*[", {"<!DOCTYPE"}},
        {"<!DOCTYPE a [*]><a/>", {"<!ATTLIST a b%1 CDATA ''>"}},
        // Many.
        {layout, {"<region id='a'/>", "<region id='r%1'/>", "<region/>", "<root-layout/>"}},
        {layout, {"<region id='A'/><region id='a'/>"}},
        {"<smil><head>*</head><body><img src='a'/></body></smil>", {"<layout/>", "<meta/>"}},
        {"<smil>*<body><img src='a'/></body></smil>", {"<head/>"}},
        {"<smil>*</smil>", {"<body/>", "<body><img/></body>"}},
        {body, {"<par/>", "<img/>", "<img region='%1'/>", "<switch><img/></switch>", "<a/>", "<a%1/>"}},
        {body, {nested("<par>", "</par>"), nested("<seq>", "</seq>"), nested("<a>", "</a>")}},
        {any.arg("<par>*</par>"), {"<img/>", "<audio src='%1'/>", "<img begin='%1ms' dur='%1ms'/>"}},
        {any.arg("<par><seq>*</seq></par>"), {"<img dur='1ms'/>"}},
        {any.arg("<switch>*</switch>"), {"<img/>"}},
        // Long.
        {any.arg("<*/>"), {"a"}},
        {"<smil><body *=''/></smil>", {"a"}},
        {region.arg("id='*'"), {"a"}},
        {region.arg("id='a' width='*1'"), {"1"}},
        {region.arg("id='a' width='*%'"), {"1"}},
        {region.arg("id='a' fit='*'"), {"a"}},
        {medium.arg("begin='*1s'"), {"1", "1s;"}},
        {medium.arg("src='*'"), {"a", "%41", "./", "&lt;"}},
        {medium.arg("region='*'"), {"a"}},
        {medium.arg("alt='*'"), {"a ", "&#10;", "&#65;", "& ", "' "}},
        // Parts.
        {body, {"<img src='a'/>@|a|a|image/gif", "<par><img src='%1'/></par>@<%1>|%1|%1|image/gif"}},
        {body, {"<par><text src='cid:%1'/></par>@<%1>|||text/plain", "<img src='a'/>@|||image/gif"}},
        {body, {"<img src='a'/>@||\u00e9|image/gif", "<img src='A'/><img src='a'/>@||A|audio/amr"}},
        {body, {"<text src='a'/>@||%1|text/plain"}},
    };
    QList<GrowthShape> shapes;
    for (const auto &[frame, pieces] : rows) {
        Q_ASSERT(frame.count(u'*') == 1);
        for (const QString &piece : pieces) {
            const QString part = piece.section(u'@', 1);
            shapes << GrowthShape{frame.section(u'*', 0, 0), piece.section(u'@', 0, 0),
                                  frame.section(u'*', 1), part.isEmpty() ? part : part + u'\n'};
        }
    }
    return shapes;
}

/// All that is made of a message.
struct Grown
{
    QString text;
    QList<VySmilPart> parts;
    VySmilElemSmil root;
    VySmilSlideShow show;

    explicit Grown(const MessageCase &message) : text(message.smil()), parts(message.parts)
    {
        VySmilParser::parse(text, &root);
        show.fromTree(root, parts);
    }
};

/// Something that lives until the end of the expression.
template <typename Type>
Type &passing(Type &&made = Type())
{
    return made;
}

using GrowthOperation = std::pair<const char *, std::function<void(const Grown &)>>;

/// What the library does with a message, each by its name.
inline std::vector<GrowthOperation> growthOperations()
{
    const auto check = [](const Grown &of) {
        for (const auto &finding :
             VySmilConformance::check(of.root, VySmilConformance::LEVEL_STRICT, of.parts))
            (void)finding.toString();
    };
    return {
        {"parse", [](const Grown &of) { VySmilParser::parse(of.text, &passing<VySmilElemSmil>()); }},
        {"strict", [](const Grown &of) { VySmilParser::parse(of.text, &passing<VySmilElemSmil>(), true); }},
        {"explain", [](const Grown &of) { (void)VySmilText::explain(of.text); }},
        {"mend", [](const Grown &of) { (void)VySmilText::mend(of.text); }},
        {"decode", [](const Grown &of) { (void)VySmilText::decode(of.text.toUtf8()); }},
        {"copy", [](const Grown &of) { const VySmilElemSmil copy(of.root); }},
        {"assemble", [](const Grown &of) { VySmilParser::assemble(&of.root, passing<QString>()); }},
        {"fromTree", [](const Grown &of) { VySmilSlideShow().fromTree(of.root, of.parts); }},
        {"toTree", [](const Grown &of) { of.show.toTree(&passing<VySmilElemSmil>(), of.parts); }},
        {"check", check},
        {"nameAll", [](const Grown &of) { VySmilPart::nameAll(passing(QList<VySmilPart>(of.parts))); }},
        {"fromParts", [](const Grown &of) { VySmilSlideShow().fromParts(of.parts); }},
        {"splitSlides", [](const Grown &of) { VySmilSlideShow(of.show).splitSlides(); }},
        {"layOut", [](const Grown &of) { VySmilSlideShow(of.show).layOut(); }},
    };
}

#endif
