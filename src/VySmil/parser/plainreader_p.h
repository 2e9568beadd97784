// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_PLAINREADER_P_H
#define VYSMIL_PLAINREADER_P_H

#include <VySmil/model/treebuilder_p.h>
#include <VySmil/parser/textcursor_p.h>

#include <QStringView>

#include <vector>

namespace VySmilPrivate {

/// Reads the plain XML that messages are made of: tags and attributes with ASCII names, values with
/// references to characters, ordinary text, comments.
///
/// What it takes, Qt takes, with the same tree; what it refuses, Qt refuses; and at the first thing that it
/// is not certain of it stops, for Qt to read the text from its start.
class PlainReader
{
public:
    enum class Outcome {
        Done,    ///< the whole text is read
        Unsure,  ///< the text may be XML of another kind, or none, or exceed the bounds of VySmilParser
        Refused, ///< the text exceeds those bounds, or an end tag is missing
    };

    /// \a document and \a treeBuilder outlive the reader.
    PlainReader(QStringView document, TreeBuilder &treeBuilder);

    /// Feeds the builder. Called once.
    Outcome read();

private:
    // The steps: what they say holds for the text up to there.
    Outcome readMarkup();
    Outcome readText();
    Outcome readComment();
    Outcome readStartTag();
    Outcome readEndTag();
    Outcome readAttributes();
    Outcome readValue(QString &value);
    QStringView readName();

    TreeBuilder &m_builder;
    TextCursor m_text;
    std::vector<QStringView> m_open;
    std::vector<Attribute> m_attributes; // of the tag that is being read
    bool m_hasRoot = false;
};

} // namespace VySmilPrivate

#endif
