// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_PLAINREADER_P_H
#define VYSMIL_PLAINREADER_P_H

#include <VySmil/model/treebuilder_p.h>

namespace VySmilPrivate {

/// Reads the plain XML that messages are made of: tags and attributes with ASCII names, values with
/// references to characters, ordinary text, comments.
///
/// It never calls a text malformed: what it takes, Qt takes, with the same tree, and at the first thing that
/// it is not certain of it only goes on holding the bounds, for Qt to read the text from its start.
class PlainReader
{
public:
    enum class Outcome {
        Complete, ///< the whole text is read
        Refused,  ///< the text exceeds the bounds of VySmilParser
        Unsure,   ///< the text is within the bounds, but may be XML of another kind, or none
    };

    /// \a document and \a treeBuilder outlive the reader.
    PlainReader(QStringView document, TreeBuilder &treeBuilder);

    /// Feeds the builder. Called once.
    Outcome read();

private:
    bool readMarkup();
    bool readText();
    bool readComment();
    bool readStartTag();
    bool readEndTag();
    bool readAttributes();
    bool readValue(QString &value);
    bool readReference(QString &value);
    QStringView readName();
    bool skipBlanks();
    bool skip(QStringView expected);
    bool isWithinBounds();
    bool isTagWithinBounds();
    void skipPast(QStringView expected);
    bool isAt(char16_t c) const { return at < end && *at == c; }

    TreeBuilder &builder;
    const char16_t *at;
    const char16_t *const end;
    std::vector<QStringView> open;
    std::vector<Attribute> attributes; // of the tag that is being read
    bool hasRoot = false;
    bool isRefused = false;
};

} // namespace VySmilPrivate

#endif
