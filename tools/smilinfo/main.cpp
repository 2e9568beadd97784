// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// smilinfo: says what is in a SMIL document, what it shows, and what is wrong with it.

#include "../commandline.h"
#include "../complain.h"
#include "inform.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

namespace {

// The exit status.
enum class Outcome {
    Ok = 0,
    Findings = 1,
    Unreadable = 2,
};

// Reads a document and says what was asked for; what keeps it from being read goes to standard error.
Outcome inform(QTextStream &out, const QString &path, const Reading &reading, const Wishes &wishes)
{
    Document document;
    QString error;
    if (!readMessage(path, reading, document.message, error)) {
        complain(document.message.path, error);
        if (wishes.json)
            printJson(out, errorToJson(document.message.path, error));
        return Outcome::Unreadable;
    }
    const Message &message = document.message;
    if (wishes.slides || wishes.json)
        document.slides.fromTree(message.root, message.parts.list);
    if (wishes.level)
        document.findings = VySmilConformance::check(message.root, *wishes.level, message.parts.list);
    if (wishes.json)
        printJson(out, toJson(document, wishes));
    else
        printText(out, document, wishes);
    const bool isClean = document.findings.isEmpty() && message.result == VySmil::RESULT_OK;
    return isClean ? Outcome::Ok : Outcome::Findings;
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        QStringLiteral("Says what is in SMIL documents, what they show, and what is wrong with them."));
    addCommonOptions(parser);
    parser.addOption({QStringLiteral("strict"), QStringLiteral("Stop at the first finding.")});
    parser.addOption(
        {QStringLiteral("rewrite"), QStringLiteral("Print the document written anew instead of the tree.")});
    parser.addOption({QStringLiteral("slides"), QStringLiteral("Print the slides instead of the tree.")});
    parser.addOption({QStringLiteral("check"), QStringLiteral("Print what other phones will trip over.")});
    parser.addOption({QStringLiteral("level"),
                      QStringLiteral("How to check: strict, for who sends (the default), or relaxed, for who "
                                     "receives."),
                      QStringLiteral("level"), QStringLiteral("strict")});
    parser.addOption({QStringLiteral("json"),
                      QStringLiteral("Print all that is known as a JSON object for each document.")});
    parser.addPositionalArgument(
        QStringLiteral("files"),
        QStringLiteral("What to read: documents, or folders that hold one and its parts; standard input "
                       "without any."),
        QStringLiteral("[files...]"));
}

// What the options ask for; nothing if there is no such level.
std::optional<Wishes> wishesOf(const QCommandLineParser &parser)
{
    Wishes wishes;
    wishes.rewrite = parser.isSet(QStringLiteral("rewrite"));
    wishes.mend = parser.isSet(QStringLiteral("mend"));
    wishes.slides = parser.isSet(QStringLiteral("slides"));
    wishes.json = parser.isSet(QStringLiteral("json"));
    const QString level = parser.value(QStringLiteral("level"));
    if (level != u"strict" && level != u"relaxed") {
        complain(QStringLiteral("no such level: ") + level);
        return std::nullopt;
    }
    if (parser.isSet(QStringLiteral("check")))
        wishes.level =
            level == u"strict" ? VySmilConformance::LEVEL_STRICT : VySmilConformance::LEVEL_RELAXED;
    return wishes;
}

} // namespace

int main(int argc, char **argv)
{
    usePlainLocale();
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("smilinfo"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VYSMIL_VERSION));
    QCommandLineParser parser;
    addOptions(parser);
    processArguments(parser, static_cast<int>(Outcome::Unreadable));
    const std::optional<Wishes> wishes = wishesOf(parser);
    if (!wishes)
        return static_cast<int>(Outcome::Unreadable);
    bool isComplete = false;
    Reading reading = readingOf(parser, isComplete);
    reading.strict = parser.isSet(QStringLiteral("strict"));

    QStringList paths = parser.positionalArguments();
    if (paths.isEmpty())
        paths << QStringLiteral("-");
    QTextStream out(stdout);
    Outcome worst = isComplete ? Outcome::Ok : Outcome::Unreadable;
    for (const QString &path : std::as_const(paths)) {
        worst = std::max(worst, inform(out, path, reading, *wishes));
        out.flush();
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        complain(QStringLiteral("standard output cannot be written"));
        worst = Outcome::Unreadable;
    }
    return static_cast<int>(worst);
}
