// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../names.h"
#include "../printable.h"
#include "inform.h"

#include <VySmil/model/vocabulary_p.h>

namespace {

constexpr auto version = VySmil::SMIL_VER_DEFAULT;

// Of a document that was read, as far as it was.
QString inWords(int result)
{
    switch (result) {
    case VySmil::RESULT_INVALID_ELEMENT:
        return QStringLiteral("stopped at an element that is not in the vocabulary");
    case VySmil::RESULT_INVALID_ATTR:
        return QStringLiteral("stopped at an attribute that its element does not take");
    default:
        return QStringLiteral("read");
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
    return QStringLiteral("    (%1)").arg(printable(inWords(value))) +
           (result == VySmil::RESULT_OK ? QString() : QStringLiteral("    <-- does not read"));
}

// What the library makes of an attribute that has a type, or nothing.
QString typedReading(const QString &name, const QString &text)
{
    switch (VySmilPrivate::valueKindOf(VySmilPrivate::attrOf(name))) {
    case VySmilPrivate::ValueKind::Length:
        return reading<VySmil::VyLength>(text);
    case VySmilPrivate::ValueKind::Time:
        return reading<VySmil::VyTime>(text);
    case VySmilPrivate::ValueKind::Text:
        break;
    }
    return QString();
}

void printTree(QTextStream &out, const VySmilElemBase &elem, int indent)
{
    const QString margin(qsizetype(2) * indent, u' ');
    out << margin << printable(elem.getElemType());
    if (!elem.isValidElement(elem.getElemType(), version))
        out << "    <-- unknown element";
    out << '\n';
    const QMap<QString, QString> attributes = elem.getAttributes();
    for (auto it = attributes.begin(); it != attributes.end(); ++it) {
        out << margin << "  @" << printable(it.key()) << " = \"" << printable(it.value()) << '"';
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
    return guesses == 0
               ? QString()
               : QStringLiteral("    <-- guessed: ") + shortNames(guesses).join(QStringLiteral(", "));
}

QString place(const QRect &rect)
{
    return QStringLiteral("%1,%2 in %3 x %4")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

QString color(const char *of, const QColor &color)
{
    return color.isValid() ? QStringLiteral(", %1 %2").arg(QLatin1String(of), colorName(color)) : QString();
}

QString part(const Parts &parts, int part)
{
    return QStringLiteral("%1 (%2)").arg(printable(parts.files.at(part)), parts.list.at(part).contentType);
}

QString inWords(const VySmilMedium &medium, const Parts &parts)
{
    QString line = QStringLiteral("%1 \"%2\" from ").arg(shortName(medium.kind), printable(medium.src));
    line += medium.endMs < 0 ? QStringLiteral("%1 ms to the end of the slide").arg(medium.beginMs)
                             : QStringLiteral("%1 to %2 ms").arg(medium.beginMs).arg(medium.endMs);
    if (!medium.rect.isNull())
        line += QStringLiteral(", at ") + place(medium.rect);
    if (medium.area != medium.rect)
        line += QStringLiteral(", cut from ") + place(medium.area);
    if (!medium.fit.isEmpty())
        line += QStringLiteral(", fit ") + printable(medium.fit);
    line += color("background", medium.background) + color("foreground", medium.foreground);
    if (!medium.alt.isEmpty())
        line += QStringLiteral(", alt \"") + printable(medium.alt) + u'"';
    if (medium.part >= 0)
        line += QStringLiteral(", part ") + part(parts, medium.part);
    return line + guessed(medium.guesses);
}

void printSlides(QTextStream &out, const VySmilSlideShow &show, const Parts &parts)
{
    out << "  " << show.size.width() << " x " << show.size.height() << " pixels"
        << color("background", show.background) << guessed(show.guesses) << '\n';
    for (int i = 0; i < show.slides.size(); ++i) {
        const VySmilSlide &slide = show.slides.at(i);
        out << "  slide " << i + 1 << ": " << slide.durationMs << " ms" << guessed(slide.guesses) << '\n';
        for (const VySmilMedium &medium : slide.media)
            out << "    " << inWords(medium, parts) << '\n';
    }
    for (const int unused : show.unusedParts)
        out << "  unused: " << part(parts, unused) << '\n';
}

} // namespace

void printText(QTextStream &out, const Document &document, const Wishes &wishes)
{
    const Message &message = document.message;
    const QString path = printable(message.path);
    const bool wantsTree = !wishes.slides && !wishes.level && !wishes.rewrite;
    if (wantsTree || wishes.slides || message.result != VySmil::RESULT_OK)
        out << path << ": " << inWords(message.result) << "; " << inWords(message.status) << '\n';
    if (wantsTree)
        printTree(out, message.root, 1);
    if (wishes.slides)
        printSlides(out, document.slides, message.parts);
    for (const VySmilFinding &finding : document.findings) {
        out << path << ": " << (finding.severity == VySmilFinding::SEVERITY_ERROR ? "error: " : "warning: ")
            << printable(finding.toString()) << '\n';
    }
    if (wishes.rewrite && message.result == VySmil::RESULT_OK) {
        QString written;
        VySmilParser::assemble(&message.root, written);
        // A bare attribute is read, and written as it was.
        out << printableXml(wishes.mend ? VySmilText::mend(written) : written)
            << (written.endsWith(u'\n') ? "" : "\n");
    }
}
