// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// smilinfo: says what is in a SMIL document, and what is wrong with it.

#include "../readtext.h"

#include <VySmil/VySmil>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

namespace {

constexpr auto version = VySmil::SMIL_VER_DEFAULT;

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
    static const QStringList lengths{QStringLiteral("width"), QStringLiteral("height"),
                                     QStringLiteral("left"), QStringLiteral("top")};
    static const QStringList times{QStringLiteral("begin"), QStringLiteral("end"), QStringLiteral("dur")};
    if (lengths.contains(name))
        return reading<VySmil::VyLength>(text);
    return times.contains(name) ? reading<VySmil::VyTime>(text) : QString();
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

struct Options
{
    bool strict;
    bool rewrite;
};

// Prints what is known of one document; gives what must go to standard error, if anything.
QString inform(QTextStream &out, const QString &path, const Options &options)
{
    QString error;
    const std::optional<QString> text = readText(path, error);
    if (!text)
        return error;

    VySmilElemSmil root;
    VySmil::STATUS_CODE status = VySmil::STATUS_OK;
    const int result = VySmilParser::parse(*text, &root, options.strict, &status, version);
    if (result == VySmil::RESULT_MALFORMED || result == VySmil::RESULT_UNUSABLE)
        return inWords(result);
    out << path << ": " << inWords(result) << "; " << inWords(status) << '\n';
    printTree(out, root, 1);
    if (options.rewrite && result == VySmil::RESULT_OK) {
        QString written;
        VySmilParser::assemble(&root, written, false, nullptr, version);
        out << written;
    }
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Says what is in a SMIL document, and what is wrong with it."));
    parser.addHelpOption();
    const QCommandLineOption strict(QStringLiteral("strict"), QStringLiteral("Stop at the first finding."));
    const QCommandLineOption rewrite(QStringLiteral("rewrite"),
                                     QStringLiteral("Print the document written anew."));
    parser.addOptions({strict, rewrite});
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("What to read, or standard input."),
                                 QStringLiteral("[files...]"));
    parser.process(app);

    QStringList paths = parser.positionalArguments();
    if (paths.isEmpty())
        paths << QStringLiteral("-");
    QTextStream out(stdout);
    QTextStream err(stderr);
    bool failed = false;
    for (const QString &path : std::as_const(paths)) {
        const QString error = inform(out, path, {parser.isSet(strict), parser.isSet(rewrite)});
        out.flush();
        if (!error.isEmpty()) {
            err << "smilinfo: " << path << ": " << error << Qt::endl;
            failed = true;
        }
    }
    return failed ? 1 : 0;
}
