// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_GROWTH_H
#define VYSMIL_TESTS_GROWTH_H

#include "messagecase.h"

#include <VySmil/VySmil>

#include <functional>
#include <utility>
#include <vector>

// What the cost of every operation must stay in proportion to: texts that are full of the smallest of one
// thing.

/// A text that grows: its beginning, a piece again and again, its end. A "%1" in the piece is the number of
/// the piece, of seven digits, and so in the part (see MessageCase) that comes with each, if one does.
struct GrowthShape
{
    const char *name;
    QString before;
    QString piece;
    QString after;
    const char *part = nullptr;

    static QString numbered(QString text, qsizetype number)
    {
        return text.replace(QLatin1String("%1"), QString::number(10'000'000 + number).mid(1));
    }

    QString text(qsizetype pieces) const
    {
        if (!piece.contains(QLatin1String("%1")))
            return before + piece.repeated(pieces) + after;
        QString text = before;
        for (qsizetype i = 0; i < pieces; ++i)
            text += numbered(piece, i);
        return text + after;
    }

    QList<VySmilPart> parts(qsizetype pieces) const
    {
        QList<VySmilPart> parts;
        for (qsizetype i = 0; part != nullptr && i < pieces; ++i) {
            parts << MessageCase::partOf(numbered(QString::fromLatin1(part), i));
        }
        return parts;
    }
};

inline QList<GrowthShape> growthShapes()
{
    const auto inBody = [](const char *name, const QString &piece, const char *part = nullptr) {
        return GrowthShape{name, "<smil><body>", piece, "</body></smil>", part};
    };
    const auto inPar = [](const char *name, const QString &piece, const char *part = nullptr) {
        return GrowthShape{name, "<smil><body><par>", piece, "</par></body></smil>", part};
    };
    const auto inLayout = [](const char *name, const QString &piece) {
        return GrowthShape{
            name, "<smil><head><layout>", piece,
            "</layout></head><body><par><img src='a' region='a'/><img src='b' region='r0000009'/>"
            "</par></body></smil>"};
    };
    const auto longRegion = [](const char *name, const char *before, const char *piece, const char *after) {
        return GrowthShape{name, QString("<smil><head><layout><region ") + before, piece,
                           QString(after) +
                               "/></layout></head><body><par><img src='a' region='a'/></par></body></smil>"};
    };
    const auto longMedium = [](const char *name, const char *before, const char *piece, const char *after) {
        return GrowthShape{name, QString("<smil><body><par><img ") + before, piece,
                           QString(after) + "/><text src='b'/></par></body></smil>"};
    };
    const auto nested = [](const char *open, const char *shut, int depth) {
        return QString(open).repeated(depth) + "<img src='a'/>" + QString(shut).repeated(depth);
    };
    QString attributes;
    for (int i = 0; i < 250; ++i)
        attributes += QString(" a%1=''").arg(QString::number(i, 36));

    return {
        // What reading takes apart.
        longMedium("references", "src='", "&lt;", "'"),
        longMedium("references by number", "alt='", "&#65;", "'"),
        inBody("references between elements", "&amp;"),
        inBody("comments", "<!---->"),
        inBody("CDATA sections", "<![CDATA[]]>"),
        inBody("blanks", " "),
        inBody("attributes", "<par" + attributes + "/>"),
        {"attributes, read by Qt", "<smil><?x?><body>", "<par a=''/>", "</body></smil>"},
        // What does not read.
        longMedium("ampersands", "alt='", "& ", "'"),
        longMedium("quotes", "alt='", "' ", "'"),
        inBody("opened brackets", "<"),
        inBody("start tags alone", "<par>"),
        inBody("end tags alone", "</par>"),
        inBody("unknown references", "&a;"),
        inBody("comments that do not end", "<!--"),
        {"text behind the end", "<smil/>", "a ", ""},
        {"attributes of one tag", "<smil ", "a%1='' ", "/>"},
        {"declarations of a document type", "<!DOCTYPE a [", "<!ATTLIST a b%1 CDATA ''>", "]><a/>"},
        {"unquoted attributes", "<smil ", "a=&/' ", ""},
        {"attributes without a value", "<smil ", "nohref ", ""},
        {"attributes whose quotes do not end", "<smil ", "a= \"x ", ""},
        {"attributes on whose quotes the last decides", "<smil ", "a= \"x ", "a=\"x"},
        {"attributes with quotes of all kinds", "<smil ", QString("a='\u201c b=\"\u2018 "), ""},
        {"blanks before a quote", "<smil a=\"", "=    \"x ", ""},
        {"quotes alone", "<smil a=\"", "\"", ""},
        {"names in the wrong letter case", "<smil><body>", "<IMG SRC='\na'/>", "</body></smil>"},
        {"tags that nothing closes", "<smil><body>", "<par><img src=a&b>", ""},
        {"end tags of other elements", "<smil>" + nested("<a>", "", 250), "</b>", ""},
        {"CDATA sections that do not end", "<smil>", "<![CDATA[", ""},
        {"instructions that do not end", "<smil>", "<?", ""},
        {"document types that do not end", "<smil>", "<!DOCTYPE [", ""},
        {"document types on which the last bracket decides", "<smil>", "<!DOCTYPE", "["},
        {"subsets that do not end", "<smil>", "<!DOCTYPE [ ]  ", ""},
        {"names alone", "<smil ", "a", ""},
        // Many.
        inLayout("regions of one id", "<region id='a'/>"),
        inLayout("regions of many ids", "<region id='r%1'/>"),
        inLayout("regions whose ids differ in letter case", "<region id='A'/><region id='a'/>"),
        inLayout("regions without an id", "<region/>"),
        inLayout("root layouts", "<root-layout/>"),
        {"layouts", "<smil><head>", "<layout/>", "</head><body><img src='a'/></body></smil>"},
        {"heads", "<smil>", "<head/>", "<body><img src='a'/></body></smil>"},
        {"metas", "<smil><head>", "<meta/>", "</head><body/></smil>"},
        {"bodies", "<smil>", "<body/>", "</smil>"},
        {"bodies with a medium", "<smil>", "<body><img/></body>", "</smil>"},
        inBody("pars", "<par/>"),
        inBody("media alone", "<img/>"),
        inPar("media in one par", "<img/>"),
        inPar("sounds in one par", "<audio src='%1'/>"),
        inPar("times in one par", "<img begin='%1ms' dur='%1ms'/>"),
        {"media in one seq", "<smil><body><par><seq>", "<img dur='1ms'/>", "</seq></par></body></smil>"},
        {"media in one switch", "<smil><body><switch>", "<img/>", "</switch></body></smil>"},
        inBody("switches", "<switch><img/></switch>"),
        inBody("regions that are not there", "<img region='%1'/>"),
        inBody("unknown siblings of one name", "<a/>"),
        inBody("unknown siblings of many names", "<a%1/>"),
        inBody("deep", nested("<par>", "</par>", 250)),
        inBody("deep in seq", nested("<seq>", "</seq>", 250)),
        inBody("deep in unknown elements", nested("<a>", "</a>", 250)),
        // Long.
        {"a long name", "<smil><body><", "a", "/></body></smil>"},
        {"a long name of an attribute", "<smil><body ", "a", "=''/></smil>"},
        longRegion("a long id", "id='", "a", "'"),
        longRegion("a long length", "id='a' width='", "1", "'"),
        longRegion("a long percentage", "id='a' width='", "1", "%'"),
        longRegion("a long fit", "id='a' fit='", "a", "'"),
        longMedium("a long time", "begin='", "1", "s'"),
        longMedium("a long list of times", "begin='", "1s;", "1s'"),
        longMedium("a long source", "src='", "a", "'"),
        longMedium("a long source of escapes", "src='", "%41", "'"),
        longMedium("a long path", "src='", "./", "'"),
        longMedium("a long reference to a region", "region='", "a", "'"),
        longMedium("a long alternative", "alt='", "a ", "'"),
        longMedium("controls", "alt='", "&#10;", "'"),
        // Parts.
        inBody("parts with one name", "<img src='a'/>", "|a|a|image/gif"),
        inBody("parts with names of their own", "<par><img src='%1'/></par>", "<%1>|%1|%1|image/gif"),
        inBody("parts named by content id", "<par><text src='cid:%1'/></par>", "<%1>|||text/plain"),
        inBody("parts without a name", "<img src='a'/>", "|||image/gif"),
        inBody("parts with a name that needs another", "<img src='a'/>", "||\xE9|image/gif"),
        inBody("parts with names that differ in letter case", "<img src='A'/><img src='a'/>",
               "||A|audio/amr"),
        inBody("parts that nothing uses", "<text src='a'/>", "||%1|text/plain"),
    };
}

/// All that is made of such a text.
struct Grown
{
    QString text;
    QList<VySmilPart> parts;
    VySmilElemSmil root;
    VySmilSlideShow show;

    Grown(const GrowthShape &shape, qsizetype pieces) : Grown(shape.text(pieces), shape.parts(pieces)) {}
    Grown(const QString &document, const QList<VySmilPart> &itsParts) : text(document), parts(itsParts)
    {
        VySmilParser::parse(text, &root);
        show.fromTree(root, parts);
    }
};

using GrowthOperation = std::pair<const char *, std::function<void(const Grown &)>>;

/// What the library does with a message, each by its name.
inline std::vector<GrowthOperation> growthOperations()
{
    return {
        {"parse",
         [](const Grown &grown) {
             VySmilElemSmil root;
             VySmilParser::parse(grown.text, &root);
         }},
        {"strict parse",
         [](const Grown &grown) {
             VySmilElemSmil root;
             VySmilParser::parse(grown.text, &root, true);
         }},
        {"explain", [](const Grown &grown) { (void)VySmilText::explain(grown.text); }},
        {"mend", [](const Grown &grown) { (void)VySmilText::mend(grown.text); }},
        {"decode", [](const Grown &grown) { (void)VySmilText::decode(grown.text.toUtf8()); }},
        {"copy", [](const Grown &grown) { const VySmilElemSmil copy(grown.root); }},
        {"assemble",
         [](const Grown &grown) {
             QString text;
             VySmilParser::assemble(&grown.root, text);
         }},
        {"fromTree", [](const Grown &grown) { VySmilSlideShow().fromTree(grown.root, grown.parts); }},
        {"toTree",
         [](const Grown &grown) {
             VySmilElemSmil root;
             grown.show.toTree(&root, grown.parts);
         }},
        {"check",
         [](const Grown &grown) {
             for (const VySmilFinding &finding :
                  VySmilConformance::check(grown.root, VySmilConformance::LEVEL_STRICT, grown.parts))
                 (void)finding.toString();
         }},
        {"nameAll",
         [](const Grown &grown) {
             QList<VySmilPart> parts = grown.parts;
             VySmilPart::nameAll(parts);
         }},
        {"fromParts", [](const Grown &grown) { VySmilSlideShow().fromParts(grown.parts); }},
        {"splitSlides",
         [](const Grown &grown) {
             VySmilSlideShow show = grown.show;
             show.splitSlides();
         }},
        {"layOut",
         [](const Grown &grown) {
             VySmilSlideShow show = grown.show;
             show.layOut();
         }},
    };
}

#endif
