// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../kindname.h"
#include "inform.h"

QString inWords(int result)
{
    switch (result) {
    case VySmil::RESULT_OK:
        return QStringLiteral("read");
    case VySmil::RESULT_INVALID_ELEMENT:
        return QStringLiteral("stopped at an element that is not in the vocabulary");
    case VySmil::RESULT_INVALID_ATTR:
        return QStringLiteral("stopped at an attribute that its element does not take");
    case VySmil::RESULT_UNUSABLE:
        return QStringLiteral("no SMIL: the text is empty or an element is misspelt");
    case VySmil::RESULT_NO_OBJECT:
        return QStringLiteral("out of memory");
    default:
        return QStringLiteral("no well-formed XML, or beyond the bounds");
    }
}

QString inWords(VySmil::STATUS_CODE status)
{
    switch (status) {
    case VySmil::STATUS_OK:
        return QStringLiteral("nothing found");
    case VySmil::STATUS_INVALID_ELEMENT:
        return QStringLiteral("last finding: an unknown element");
    default:
        return QStringLiteral("last finding: an unknown attribute");
    }
}

bool holdsLength(const QString &attribute)
{
    static const QStringList lengths{QStringLiteral("width"), QStringLiteral("height"),
                                     QStringLiteral("left"), QStringLiteral("top")};
    return lengths.contains(attribute);
}

bool holdsTime(const QString &attribute)
{
    static const QStringList times{QStringLiteral("begin"), QStringLiteral("end"), QStringLiteral("dur")};
    return times.contains(attribute);
}

QStringList namesOf(VySmilMedium::GUESSES guesses)
{
    QStringList names;
    for (const auto &[flag, name] :
         {std::pair(VySmilMedium::GUESS_SIZE, "size"), std::pair(VySmilMedium::GUESS_REGION, "region"),
          std::pair(VySmilMedium::GUESS_TIME, "time"), std::pair(VySmilMedium::GUESS_PART, "part")}) {
        if (guesses.testFlag(flag))
            names << QString::fromLatin1(name);
    }
    return names;
}

namespace {

constexpr auto version = VySmil::SMIL_VER_DEFAULT;

QString inWords(const VySmil::VyLength &length)
{
    switch (length.unit) {
    case VySmil::UNIT_PIXELS:
        return QStringLiteral("%1 pixels").arg(length.value.pixels);
    case VySmil::UNIT_PERCENT:
        return QStringLiteral("%1 percent").arg(static_cast<double>(length.value.percent));
    default:
        return QStringLiteral("no length");
    }
}

QString inWords(const VySmil::VyTime &time)
{
    static const char *const kinds[] = {
        "offset", "sync-base",  "event",           "repeat",     "access key", "media marker", "wall-clock",
        "clock",  "plain text", "SMPTE time code", "percentage", "indefinite", "empty"};
    QString text = QStringLiteral("%1 time %2").arg(QLatin1String(kinds[time.timeType]), time.toString());
    const VySmil::VyTimeClock &clock = time.clockTime;
    if (time.timeType == VySmil::VyTime::TIME_CLOCK &&
        clock.clockType == VySmil::VyTimeClock::CLOCK_TIMECOUNT)
        text += QStringLiteral(", %1 ms").arg(clock.timeCount.toMilliSeconds());
    return text;
}

template <typename Value>
QString reading(const QString &text)
{
    Value value;
    const int result = value.fromString(text);
    return QStringLiteral("    (%1)").arg(inWords(value)) +
           (result == VySmil::RESULT_OK ? QString() : QStringLiteral("    <-- does not read"));
}

// What the library makes of an attribute that has a type, or nothing.
QString typedReading(const QString &name, const QString &text)
{
    if (holdsLength(name))
        return reading<VySmil::VyLength>(text);
    return holdsTime(name) ? reading<VySmil::VyTime>(text) : QString();
}

void printTree(QTextStream &out, const VySmilElemBase &elem, int indent)
{
    const QString margin(qsizetype(2) * indent, u' ');
    out << margin << elem.getElemType();
    if (!elem.isValidElement(elem.getElemType(), version))
        out << "    <-- unknown element";
    out << '\n';
    const QMap<QString, QString> attributes = elem.getAttributes();
    for (auto it = attributes.begin(); it != attributes.end(); ++it) {
        out << margin << "  @" << it.key() << " = \"" << it.value() << '"';
        if (elem.isValidAttr(it.key(), version))
            out << typedReading(it.key(), it.value());
        else
            out << "    <-- unknown attribute";
        out << '\n';
    }
    // The bounds of VySmilParser::parse() keep this from recursing deeply.
    for (const VySmilElemBase *child : *elem.getSubElements())
        printTree(out, *child, indent + 1);
}

// As a note behind a line; empty where nothing was guessed.
QString guessed(VySmilMedium::GUESSES guesses)
{
    return guesses == 0 ? QString()
                        : QStringLiteral("    <-- guessed: ") + namesOf(guesses).join(QStringLiteral(", "));
}

void printSlides(QTextStream &out, const VySmilSlideShow &show)
{
    out << "  " << show.size.width() << " x " << show.size.height() << " pixels" << guessed(show.guesses)
        << '\n';
    for (int i = 0; i < show.slides.size(); ++i) {
        const VySmilSlide &slide = show.slides.at(i);
        out << "  slide " << i + 1 << ": " << slide.durationMs << " ms" << guessed(slide.guesses) << '\n';
        for (const VySmilMedium &medium : slide.media) {
            out << "    " << kindName(medium.kind) << " \"" << medium.src << "\" from " << medium.beginMs
                << " to " << medium.endMs << " ms";
            const QRect &rect = medium.rect;
            if (!rect.isNull())
                out << ", at " << rect.x() << ',' << rect.y() << " in " << rect.width() << " x "
                    << rect.height();
            if (!medium.fit.isEmpty())
                out << ", fit " << medium.fit;
            if (!medium.alt.isEmpty())
                out << ", alt \"" << medium.alt << '"';
            out << guessed(medium.guesses) << '\n';
        }
    }
}

} // namespace

void printText(QTextStream &out, const Document &document, const Wishes &wishes)
{
    const bool wantsTree = !wishes.slides && !wishes.level;
    if (wantsTree || wishes.slides)
        out << document.path << ": " << inWords(document.result) << "; " << inWords(document.status) << '\n';
    if (wantsTree)
        printTree(out, document.root, 1);
    if (wishes.slides)
        printSlides(out, document.slides);
    for (const VySmilFinding &finding : document.findings) {
        out << document.path << ": "
            << (finding.severity == VySmilFinding::SEVERITY_ERROR ? "error: " : "warning: ")
            << finding.toString() << '\n';
    }
    if (wishes.rewrite && document.result == VySmil::RESULT_OK) {
        QString written;
        VySmilParser::assemble(&document.root, written, false, nullptr, version);
        out << written;
    }
}
