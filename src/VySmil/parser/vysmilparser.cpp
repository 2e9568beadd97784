// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/parser/document_p.h>
#include <VySmil/parser/plainreader_p.h>
#include <VySmil/parser/vysmilparser.h>

#include <QXmlStreamReader>

#include <vector>

namespace {

// Feeds what Qt's stream reader finds, set up as QDomDocument::setContent() does it. False if the text is not
// well-formed; the builder is of no more use then.
bool readByQt(QStringView text, VySmilPrivate::TreeBuilder &builder)
{
    QXmlStreamReader reader(text.toString());
    reader.setNamespaceProcessing(false);
    std::vector<VySmilPrivate::Attribute> attributes;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            attributes.clear();
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                attributes.push_back(
                    {VySmilPrivate::interned(attribute.qualifiedName()), attribute.value().toString()});
            VySmilPrivate::sortByName(attributes);
            builder.startElement(reader.qualifiedName(), attributes);
        } else if (token == QXmlStreamReader::EndElement) {
            builder.endElement();
        }
    }
    return !reader.hasError();
}

} // namespace

int VySmilParser::parse(const QString &text, VySmilElemSmil *root, bool strict, VySmil::STATUS_CODE *status,
                        VySmil::SMIL_VERSION version)
{
    if (status)
        *status = VySmil::STATUS_OK;
    const QStringView document = VySmilPrivate::documentIn(text);
    if (!root || document.isEmpty())
        return VySmil::RESULT_UNUSABLE;

    root->clearSubElements();
    {
        VySmilPrivate::TreeBuilder builder(*root, strict, version);
        VySmilPrivate::PlainReader reader(document, builder);
        const auto outcome = reader.read();
        if (outcome == VySmilPrivate::PlainReader::Outcome::Done)
            return builder.handOver(*root, status);
        if (outcome == VySmilPrivate::PlainReader::Outcome::Refused)
            return VySmil::RESULT_MALFORMED;
    }
    if (VySmilPrivate::outlineOf(document).excess != VySmilPrivate::Excess::None)
        return VySmil::RESULT_MALFORMED;
    VySmilPrivate::TreeBuilder builder(*root, strict, version);
    if (!readByQt(document, builder))
        return VySmil::RESULT_MALFORMED;
    return builder.handOver(*root, status);
}

int VySmilParser::assemble(const VySmilElemSmil *root, QString &out, bool strict, VySmil::STATUS_CODE *status,
                           VySmil::SMIL_VERSION version)
{
    return root ? root->toString(out, strict, status, version) : VySmil::RESULT_UNUSABLE;
}
