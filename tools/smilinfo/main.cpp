// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// smilinfo: says what is in a SMIL document, what it shows, and what is wrong with it.

#include "../readtext.h"
#include "inform.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>

namespace {

// The exit status.
enum Outcome {
    OUTCOME_OK = 0,
    OUTCOME_FINDINGS = 1,
    OUTCOME_UNREADABLE = 2,
};

// Reads a document and says what was asked for; what keeps it from being read goes to err.
Outcome inform(QTextStream &out, QTextStream &err, const QString &path, const Wishes &wishes)
{
    const auto unreadable = [&](const QString &error) {
        err << "smilinfo: " << path << ": " << error << Qt::endl;
        return OUTCOME_UNREADABLE;
    };
    QString error;
    const std::optional<QString> text = readText(path, error);
    if (!text)
        return unreadable(error);

    Document document;
    document.path = path;
    document.result =
        VySmilParser::parse(*text, &document.root, wishes.strict, &document.status, VySmil::SMIL_VER_DEFAULT);
    if (document.result == VySmil::RESULT_MALFORMED || document.result == VySmil::RESULT_UNUSABLE)
        return unreadable(inWords(document.result));
    if (wishes.slides || wishes.json)
        document.slides.fromTree(document.root);
    if (wishes.level)
        document.findings = VySmilConformance::check(document.root, *wishes.level);
    if (wishes.json)
        out << QJsonDocument(toJson(document)).toJson(QJsonDocument::Compact) << '\n';
    else
        printText(out, document, wishes);
    return document.findings.isEmpty() ? OUTCOME_OK : OUTCOME_FINDINGS;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(VYSMIL_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Says what is in SMIL documents, what they show, and what is wrong with them."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption strict(QStringLiteral("strict"), QStringLiteral("Stop at the first finding."));
    const QCommandLineOption rewrite(QStringLiteral("rewrite"),
                                     QStringLiteral("Print the document written anew."));
    const QCommandLineOption slides(QStringLiteral("slides"),
                                    QStringLiteral("Print the slides instead of the tree."));
    const QCommandLineOption check(QStringLiteral("check"),
                                   QStringLiteral("Print what other phones will trip over."));
    const QCommandLineOption level(QStringLiteral("level"),
                                   QStringLiteral("How to check: strict, for who sends (the default), or "
                                                  "relaxed, for who receives."),
                                   QStringLiteral("level"), QStringLiteral("strict"));
    const QCommandLineOption json(
        QStringLiteral("json"),
        QStringLiteral("Print all that is known as a JSON object for each document."));
    parser.addOptions({strict, rewrite, slides, check, level, json});
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("What to read, or standard input."),
                                 QStringLiteral("[files...]"));
    parser.process(app);

    QTextStream out(stdout);
    QTextStream err(stderr);
    Wishes wishes;
    wishes.strict = parser.isSet(strict);
    wishes.rewrite = parser.isSet(rewrite);
    wishes.slides = parser.isSet(slides);
    wishes.json = parser.isSet(json);
    const QString levelName = parser.value(level);
    if (levelName != u"strict" && levelName != u"relaxed") {
        err << "smilinfo: no such level: " << levelName << Qt::endl;
        return OUTCOME_UNREADABLE;
    }
    if (parser.isSet(check))
        wishes.level =
            levelName == u"strict" ? VySmilConformance::LEVEL_STRICT : VySmilConformance::LEVEL_RELAXED;

    QStringList paths = parser.positionalArguments();
    if (paths.isEmpty())
        paths << QStringLiteral("-");
    Outcome worst = OUTCOME_OK;
    for (const QString &path : std::as_const(paths)) {
        worst = std::max(worst, inform(out, err, path, wishes));
        out.flush();
    }
    return worst;
}
