// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILTEXT_H
#define VYSMIL_VYSMILTEXT_H

#include <VySmil/parser/vysmiltextfault.h>

#include <QByteArray>

/// From the bytes of a message's SMIL part to a text that VySmilParser::parse() can read.
///
/// No operation fails, reads or writes files, or takes more time than is in proportion to its input.
///
/// \see [Reading a received message](reading.md)
class VYSMIL_EXPORT VySmilText
{
public:
    /// The text of a SMIL part.
    ///
    /// The character set is told by a byte order mark, which does not come into the text; else by how the
    /// first "<" is written in UTF-16 and UTF-32; else by \a charset; else by the XML declaration; else it is
    /// UTF-8. A label "us-ascii" or "ascii", one that Qt does not know, or one of wide characters where there
    /// are none, counts as not given. What is said to be UTF-8 and is not is read as Windows-1252, or as
    /// Latin-1 where Qt lacks that. NULs, and half a character, at the end are left out.
    ///
    /// \param bytes the content of the part
    /// \param charset the parameter "charset" of its content type, with or without quotes, in any letter
    ///        case; empty if there is none
    [[nodiscard]] static QString decode(const QByteArray &bytes, const QByteArray &charset = QByteArray());

    /// Why VySmilParser::parse() does not read a text, and where: to be called when it gave
    /// VySmil::RESULT_MALFORMED or VySmil::RESULT_UNUSABLE.
    ///
    /// Of several faults the first in the text is told. The reason is VySmilTextFault::FAULT_NONE exactly
    /// where parse(), not strict, gives VySmil::RESULT_OK.
    [[nodiscard]] static VySmilTextFault explain(const QString &text);

    /// A text that VySmilParser::parse() reads, made of one that it does not, or that it reads with a loss:
    /// to be called when it gave VySmil::RESULT_MALFORMED or VySmil::RESULT_UNUSABLE, or always.
    ///
    /// A text that is read comes back as it is, unless names of the vocabulary are in the wrong letter case,
    /// or a "src" is wrapped. Of any other the tags are read one by one from the first "<smil" on, as far as
    /// they can be told, and written anew as VySmilParser::assemble() writes: with quotes and references
    /// where they are missing, the names of the vocabulary in lower case, and elements closed that were left
    /// open. Mending a mended text changes nothing.
    ///
    /// \return the text as it is if there is no tag called "smil", in any letter case, outside of comments;
    ///         else what parse() reads with VySmil::RESULT_OK
    [[nodiscard]] static QString mend(const QString &text);
};

#endif
