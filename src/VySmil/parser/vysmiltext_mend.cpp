// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/xmltext_p.h>
#include <VySmil/parser/document_p.h>
#include <VySmil/parser/reference_p.h>
#include <VySmil/parser/tagreader_p.h>
#include <VySmil/parser/vysmilparser.h>
#include <VySmil/parser/vysmiltext.h>

#include <QMap>

#include <algorithm>

namespace {

using VySmilPrivate::Attr;
using VySmilPrivate::bareAttribute;
using VySmilPrivate::Elem;
using VySmilPrivate::LooseAttribute;
using VySmilPrivate::LooseTag;
using VySmilPrivate::TagReader;
using VySmilPrivate::TextCursor;

bool isBareAttribute(const LooseAttribute &attribute)
{
    return !attribute.hasValue && attribute.name == bareAttribute;
}

Elem elemInAnyCase(QStringView name)
{
    const Elem elem = VySmilPrivate::elemOf(name);
    return elem != Elem::Unknown ? elem : VySmilPrivate::elemOf(name.toString().toLower());
}

// The name of an attribute as it should be spelt. An element that is not known takes any.
QString spelt(Elem elem, QStringView name)
{
    if (VySmilPrivate::attrOf(name) == Attr::Unknown) {
        const QString lower = name.toString().toLower();
        const Attr attr = VySmilPrivate::attrOf(lower);
        if (attr != Attr::Unknown &&
            (elem == Elem::Unknown || VySmilPrivate::takes(elem, lower, VySmil::SMIL_VER_DEFAULT)))
            return nameOf(attr);
    }
    return VySmilPrivate::interned(name);
}

bool isSource(QStringView name)
{
    return name == VySmilPrivate::nameOf(Attr::Src);
}

// What stands for a reference; what XML cannot carry stands for itself.
char32_t referenced(TextCursor &text)
{
    TextCursor behind = text;
    char32_t c = VySmilPrivate::readReference(behind);
    if (QChar::isHighSurrogate(c)) {
        const char32_t low = VySmilPrivate::readReference(behind);
        if (QChar::isLowSurrogate(low))
            c = QChar::surrogateToUcs4(static_cast<char16_t>(c), static_cast<char16_t>(low));
    }
    if (!VySmilPrivate::isXmlCharacter(c))
        return 0;
    text = behind;
    return c;
}

// A value as an XML reader gives it. Of a source the line ends are taken out: mail programs wrap.
QString valueOf(QStringView written, bool isSourceValue)
{
    const auto standsForItself = [](QChar c) { return c >= u' ' && c != u'&' && c < QChar(0xd800); };
    if (std::all_of(written.begin(), written.end(), standsForItself))
        return written.trimmed().toString();
    QString value;
    value.reserve(written.size());
    for (TextCursor text(written); !text.isAtEnd();) {
        if (const char32_t c = referenced(text)) {
            value += QChar::fromUcs4(c);
            continue;
        }
        const char16_t c = *text.at++;
        const bool isHalfOfLineEnd = c == u'\r' && text.isAt(u'\n');
        if (isHalfOfLineEnd)
            continue;
        if (isSourceValue && (c == u'\n' || c == u'\r'))
            text.skipBlanks();
        else if (VySmilPrivate::isBlank(c))
            value += u' ';
        else if (QChar::isHighSurrogate(c) && !text.isAtEnd() && QChar::isLowSurrogate(*text.at))
            value += QStringView(text.at++ - 1, 2);
        else if (VySmilPrivate::isXmlCharacter(c))
            value += QChar(c);
    }
    return std::move(value).trimmed();
}

// What mending a text has to know before it begins.
struct Survey
{
    bool isMisspelt = false;     // a name is in the wrong letter case, or a source wrapped
    QList<qsizetype> barePlaces; // behind each attribute that stands without a value
    int openedPars = 0;
    int closedPars = 0;
};

bool isMisspelt(Elem elem, const LooseAttribute &attribute)
{
    const QString name = spelt(elem, attribute.name);
    const QStringView value = attribute.value;
    return name != attribute.name || (isSource(name) && (value.contains(u'\n') || value.contains(u'\r')));
}

void surveyNames(const LooseTag &tag, Survey &survey)
{
    const Elem elem = elemInAnyCase(tag.name);
    if (elem == Elem::Par && tag.isEnd)
        ++survey.closedPars;
    else if (elem == Elem::Par && !tag.isEmpty)
        ++survey.openedPars;
    survey.isMisspelt = survey.isMisspelt || (elem != Elem::Unknown && nameOf(elem) != tag.name) ||
                        std::any_of(tag.attributes.begin(), tag.attributes.end(),
                                    [elem](const LooseAttribute &each) { return isMisspelt(elem, each); });
}

// Reads all tags that are left of \a text.
Survey surveyOf(TagReader reader, QStringView text)
{
    Survey survey;
    while (reader.readNext()) {
        const LooseTag &tag = reader.tag();
        if (tag.isNamed)
            surveyNames(tag, survey);
        for (const LooseAttribute &attribute : tag.attributes) {
            if (isBareAttribute(attribute))
                survey.barePlaces << attribute.name.utf16() + attribute.name.size() - text.utf16();
        }
    }
    return survey;
}

bool doesRead(const QString &text)
{
    VySmilElemSmil root;
    return VySmilParser::parse(text, &root) == VySmil::RESULT_OK;
}

bool readsWithBareAttributes(QStringView text, const QList<qsizetype> &barePlaces)
{
    if (barePlaces.isEmpty())
        return false;
    QString completed;
    qsizetype done = 0;
    for (const qsizetype place : barePlaces) {
        completed += text.sliced(done, place - done);
        completed += QStringView(u"=\"\"");
        done = place;
    }
    return doesRead(completed + text.sliced(done));
}

// Writes the document that the tags of a damaged one make.
class Mender
{
public:
    // Elements that are not nested as they should be are closed where they must have ended; \a isParLeftOpen
    // tells whether end tags of pars are missing.
    Mender(bool isNested, bool isParLeftOpen) : m_isNested(isNested), m_isParLeftOpen(isParLeftOpen) {}

    void add(const LooseTag &tag);
    bool isAtEnd() const { return !m_out.isEmpty() && m_open.empty(); }
    QString finish();

private:
    struct Open
    {
        Elem elem;
        QString name;
    };

    void start(const LooseTag &tag, Elem elem);
    void end(const LooseTag &tag, Elem elem);
    void makeRoomFor(Elem elem);
    void writeAttributes(const LooseTag &tag, Elem elem);
    void writeEndTag(const QString &name) { m_out += QStringView(u"</") + name + QStringView(u">\n"); }
    void closeDownTo(std::size_t depth);
    template <typename Condition>
    void closeInnermost(Condition isMeant);

    const bool m_isNested;
    const bool m_isParLeftOpen;
    std::vector<Open> m_open;
    QString m_out;
};

void Mender::add(const LooseTag &tag)
{
    const Elem elem = elemInAnyCase(tag.name);
    if (tag.isEnd)
        end(tag, elem);
    else
        start(tag, elem);
}

QString Mender::finish()
{
    closeDownTo(0);
    return m_out;
}

void Mender::start(const LooseTag &tag, Elem elem)
{
    if (!m_isNested && !m_open.empty()) {
        if (elem == Elem::Smil)
            return;
        makeRoomFor(elem);
    }
    if (m_open.size() == VySmilParser::MAX_DEPTH)
        closeDownTo(m_open.size() - 1);
    const QString name = elem == Elem::Unknown ? tag.name.toString() : nameOf(elem);
    m_out += u'<' + name;
    writeAttributes(tag, elem);
    m_out += QStringView(u">\n");
    if (tag.isEmpty)
        writeEndTag(name);
    else
        m_open.push_back({elem, name});
}

void Mender::end(const LooseTag &tag, Elem elem)
{
    closeInnermost([&](const Open &open) {
        return open.elem == elem &&
               (elem != Elem::Unknown || tag.name.compare(open.name, Qt::CaseInsensitive) == 0);
    });
}

// Closes what cannot hold a start tag that the vocabulary knows, and what should have been closed before it.
void Mender::makeRoomFor(Elem elem)
{
    if (elem == Elem::Unknown)
        return;
    if (!VySmilPrivate::mayHoldAny(m_open.back().elem))
        closeDownTo(m_open.size() - 1);
    if (elem == Elem::Body || elem == Elem::Head)
        closeDownTo(1);
    if (elem == Elem::Par && m_isParLeftOpen)
        closeInnermost([](const Open &open) { return open.elem == Elem::Par; });
}

// In the order of their names, as a tree writes them.
void Mender::writeAttributes(const LooseTag &tag, Elem elem)
{
    struct Value
    {
        QString text;
        bool isSpeltRight;
    };
    QMap<QString, Value> values;
    for (const LooseAttribute &attribute : tag.attributes) {
        const QString name = spelt(elem, attribute.name);
        const bool isSpeltRight = name == attribute.name;
        const auto held = values.constFind(name);
        const bool isLeftOut = held == values.constEnd() ? values.size() == VySmilParser::MAX_ATTRIBUTES
                                                         : held->isSpeltRight || !isSpeltRight;
        if (isLeftOut)
            continue;
        const QString value = name == bareAttribute ? name : valueOf(attribute.value, isSource(name));
        if (!value.isEmpty())
            values.insert(name, {value, isSpeltRight});
    }
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        m_out += u' ' + it.key() + QStringView(u"=\"");
        VySmilPrivate::appendAttributeValue(m_out, it->text);
        m_out += u'"';
    }
}

void Mender::closeDownTo(std::size_t depth)
{
    for (; m_open.size() > depth; m_open.pop_back())
        writeEndTag(m_open.back().name);
}

// With all that is in it; nothing where no element is meant.
template <typename Condition>
void Mender::closeInnermost(Condition isMeant)
{
    const auto innermost = std::find_if(m_open.rbegin(), m_open.rend(), isMeant);
    if (innermost != m_open.rend())
        closeDownTo(static_cast<std::size_t>(m_open.rend() - innermost) - 1);
}

} // namespace

QString VySmilText::mend(const QString &text)
{
    const bool isRead = doesRead(text);
    TagReader start(text);
    if (!isRead && !start.goToRoot())
        return text;
    const QStringView document = isRead ? VySmilPrivate::documentIn(text) : start.rest();
    TagReader reader(document, isRead);
    const Survey survey = surveyOf(reader, text);
    if (isRead && !survey.isMisspelt)
        return text;
    Mender mender(isRead || readsWithBareAttributes(text, survey.barePlaces),
                  survey.closedPars < survey.openedPars);
    while (!mender.isAtEnd() && reader.readNext()) {
        if (reader.tag().isNamed)
            mender.add(reader.tag());
    }
    return mender.finish();
}
