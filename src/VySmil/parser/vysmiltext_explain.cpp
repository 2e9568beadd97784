// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/showntext_p.h>
#include <VySmil/model/vocabulary_p.h>
#include <VySmil/parser/document_p.h>
#include <VySmil/parser/textcursor_p.h>
#include <VySmil/parser/vysmilparser.h>
#include <VySmil/parser/vysmiltext.h>

#include <QSet>
#include <QXmlStreamReader>

namespace {

using VySmilPrivate::Excess;
using VySmilPrivate::Outline;
using VySmilPrivate::TextCursor;

// As much of a document type declaration as is looked at: Qt takes quadratic time on what it declares, and
// multiplies its entities.
constexpr qsizetype maxDeclarationSize = 4'096;

// Names in a message may be long.
constexpr int maxMessageSize = 200;

QString printed(const QString &message)
{
    QString shown;
    VySmilPrivate::appendShown(shown, message, maxMessageSize);
    QString printed;
    for (const uint c : shown.toUcs4())
        printed += QChar::fromUcs4(QChar::isPrint(c) ? c : uint(QChar::ReplacementCharacter));
    return printed;
}

VySmilTextFault fault(VySmilTextFault::REASON reason, qsizetype position, const QString &message)
{
    VySmilTextFault fault;
    fault.reason = reason;
    fault.position = position;
    fault.message = message;
    return fault;
}

// What Qt's stream reader says of a piece of a document.
struct Reading
{
    QXmlStreamReader::Error error = QXmlStreamReader::NoError;
    qsizetype stop = 0; // the character that it did not expect
    QString message;
    QString rootName;

    bool isMalformed() const
    {
        return error != QXmlStreamReader::NoError && error != QXmlStreamReader::PrematureEndOfDocumentError;
    }
};

// Reads on to the first token of a kind, or to the end.
Reading readTo(QXmlStreamReader::TokenType last, QStringView piece)
{
    QXmlStreamReader reader(piece.toString());
    reader.setNamespaceProcessing(false);
    Reading reading;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement && reading.rootName.isEmpty())
            reading.rootName = reader.qualifiedName().toString();
        if (token == last)
            break;
    }
    reading.error = reader.error();
    reading.stop = std::max<qsizetype>(reader.characterOffset() - 1, 0);
    reading.message = reader.errorString();
    return reading;
}

VySmilTextFault malformed(const Reading &reading, qsizetype from = 0)
{
    return fault(VySmilTextFault::FAULT_MALFORMED, from + reading.stop, reading.message);
}

VySmilTextFault endsTooEarly(QStringView document)
{
    return fault(VySmilTextFault::FAULT_MALFORMED, document.size(),
                 QStringLiteral("the text ends before its elements do"));
}

// Whether a tag without its ">", which is well-formed else, has two attributes of one name. Qt looks at each
// pair of them.
bool hasAttributeTwice(QStringView tag)
{
    QSet<QStringView> names;
    TextCursor text(tag);
    text.at = std::find_if(text.at, text.end, VySmilPrivate::isBlank);
    while (text.skipBlanks(), !text.isAtEnd() && !text.isAt(u'/')) {
        const char16_t *const start = text.at;
        text.goTo(u'=');
        const QStringView name = text.from(start).trimmed();
        if (names.contains(name))
            return true;
        names.insert(name);
        text.at = std::find_if(text.at, text.end, [](char16_t c) { return c == u'"' || c == u'\''; });
        if (text.isAtEnd())
            break;
        const char16_t quote = *text.at++;
        text.goTo(quote);
        text.skip(QStringView(&quote, 1));
    }
    return false;
}

// Whether a tag without its ">" ends in the middle of an attribute.
bool hasCutAttribute(QStringView tag)
{
    tag = tag.trimmed();
    if (tag.endsWith(u'/'))
        tag = tag.chopped(1).trimmed();
    return !tag.endsWith(u'"') && !tag.endsWith(u'\'');
}

// The first fault of a document with a tag of too many attributes, with which Qt is not to end.
VySmilTextFault faultUpToAttributes(QStringView document, const Outline &outline)
{
    const Reading before = readTo(QXmlStreamReader::NoToken, document.first(outline.end));
    if (before.isMalformed())
        return malformed(before);
    if (outline.end == document.size())
        return endsTooEarly(document);
    const QStringView tag = document.sliced(outline.begin, outline.end - outline.begin);
    if (hasCutAttribute(tag))
        return fault(VySmilTextFault::FAULT_MALFORMED, outline.end,
                     QStringLiteral("the last attribute has no value"));
    if (hasAttributeTwice(tag))
        return fault(VySmilTextFault::FAULT_MALFORMED, outline.end,
                     QStringLiteral("the element has two attributes of one name"));
    return fault(VySmilTextFault::FAULT_ATTRIBUTES, outline.begin,
                 QStringLiteral("the element has more than %1 attributes").arg(VySmilParser::MAX_ATTRIBUTES));
}

// The first fault of a document with a tag that is nested too deep.
VySmilTextFault faultUpToDepth(QStringView document, const Outline &outline)
{
    const bool isCut = outline.end == document.size();
    const Reading before =
        readTo(QXmlStreamReader::NoToken, document.first(isCut ? outline.end : outline.end + 1));
    if (before.isMalformed())
        return malformed(before);
    if (isCut)
        return endsTooEarly(document);
    return fault(VySmilTextFault::FAULT_DEPTH, outline.begin,
                 QStringLiteral("elements are nested deeper than %1").arg(VySmilParser::MAX_DEPTH));
}

// The first fault of a document with a document type declaration that is refused.
VySmilTextFault faultUpToDoctype(QStringView document, const Outline &outline)
{
    const Reading before = readTo(QXmlStreamReader::NoToken, document.first(outline.begin + 1));
    if (before.isMalformed())
        return malformed(before);
    const QStringView declaration = document.sliced(outline.begin);
    const Reading reading = readTo(QXmlStreamReader::DTD, declaration.left(maxDeclarationSize));
    if (reading.isMalformed())
        return malformed(reading, outline.begin);
    if (reading.error != QXmlStreamReader::NoError && declaration.size() <= maxDeclarationSize)
        return endsTooEarly(document);
    return fault(VySmilTextFault::FAULT_DOCTYPE, outline.begin,
                 QStringLiteral("a document type declaration with an internal subset, or out of place"));
}

// The position is that in the document.
VySmilTextFault faultIn(QStringView document)
{
    if (document.isEmpty())
        return fault(VySmilTextFault::FAULT_EMPTY, -1, QStringLiteral("there is no text"));
    const Outline outline = VySmilPrivate::outlineOf(document);
    switch (outline.excess) {
    case Excess::Doctype:
        return faultUpToDoctype(document, outline);
    case Excess::Attributes:
        return faultUpToAttributes(document, outline);
    case Excess::Depth:
        return faultUpToDepth(document, outline);
    case Excess::None:
        break;
    }
    const Reading reading = readTo(QXmlStreamReader::NoToken, document);
    if (reading.isMalformed())
        return malformed(reading);
    if (reading.error != QXmlStreamReader::NoError)
        return endsTooEarly(document);
    const QString smil = VySmilPrivate::nameOf(VySmilPrivate::Elem::Smil);
    if (reading.rootName != smil)
        return fault(VySmilTextFault::FAULT_NOT_SMIL, outline.root,
                     QStringLiteral("the root element is \"%1\", not \"%2\"").arg(reading.rootName, smil));
    return {};
}

// Sets line and column of the position.
void locate(VySmilTextFault &fault, QStringView text)
{
    const QStringView before = text.first(fault.position);
    qsizetype lineStart = 0;
    fault.line = 1;
    for (qsizetype i = 0; i < before.size(); ++i) {
        const bool isHalfOfLineEnd = before[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        if ((before[i] == u'\n' || before[i] == u'\r') && !isHalfOfLineEnd) {
            ++fault.line;
            lineStart = i + 1;
        }
    }
    fault.column = static_cast<int>(fault.position - lineStart) + 1;
}

} // namespace

VySmilTextFault VySmilText::explain(const QString &text)
{
    const QStringView document = VySmilPrivate::documentIn(text);
    VySmilTextFault fault = faultIn(document);
    fault.message = printed(fault.message);
    if (fault.position < 0)
        return fault;
    fault.position += document.utf16() - QStringView(text).utf16();
    locate(fault, text);
    return fault;
}
