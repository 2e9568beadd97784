// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/messageproperties.h"
#include "../support/randommessage.h"
#include "../support/storedanswer.h"

#include <QDir>
#include <QTest>

namespace {

/// What nameAll() and fromParts() make of parts.
QString composedText(const MessageCase &message)
{
    QList<VySmilPart> parts = message.parts;
    VySmilPart::nameAll(parts);
    VySmilSlideShow show;
    show.fromParts(parts, message.options);
    QString text = slidesText(show);
    for (int i = 0; i < parts.size(); ++i)
        text += "\n<" + parts[i].contentId + "> " + parts[i].contentLocation + ", was " +
                mediumText(VySmilMedium::ofPart(message.parts, i));
    return text.trimmed();
}

/// The tree that toTree() writes, regions and slides in lines of their own.
QString writtenText(const VySmilSlideShow &show, const QList<VySmilPart> &parts, VySmilElemSmil &root)
{
    show.toTree(&root, parts);
    static const QRegularExpression inLine("( |(?<=\\())(?=(meta|root-layout|region|body|par)\\[)");
    return treeText(root).replace(inLine, "\n ");
}

QString answerOf(const QString &section, const MessageCase &message, VySmilElemSmil &root)
{
    static VySmilSlideShow show; // what was in it does not shine through
    show.fromTree(root, message.parts, message.options);
    if (section == "finds")
        return findingsText(root, message.parts);
    if (section == "composes")
        return composedText(message);
    if (section == "written")
        return writtenText(show, message.parts, root);
    if (section == "split")
        show.splitSlides();
    if (section == "laid out")
        show.layOut();
    return slidesText(show);
}

} // namespace

class TestMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the messages of the corpus show, what is found in them, and what becomes of them.
    void looksAtMessages_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("text");
        for (const QFileInfo &file : QDir(CORPUS).entryInfoList({"*.message"})) {
            for (const QString &text : MessageCase::textsIn(storedText(file.filePath())))
                QTest::newRow(qPrintable(file.fileName() + ": " + text.section(u'\n', 0, 0)))
                    << file.filePath() << text;
        }
    }
    void looksAtMessages()
    {
        QFETCH(QString, path);
        QFETCH(QString, text);
        const MessageCase message(text);
        VySmilElemSmil root;
        QCOMPARE(VySmilParser::parse(message.smil(), &root), 0);
        QStringList sections = text.split("\n--- ");
        for (int i = 1; i < sections.size(); ++i) {
            const QString name = sections[i].section(u'\n', 0, 0);
            if (name != "parts" && name != "options")
                sections[i] = (name + u'\n' + answerOf(name, message, root)).trimmed();
        }
        const QString answered = sections.join("\n--- ");
        if (renewsAnswers())
            QVERIFY(storeText(path, storedText(path).replace(text, answered)));
        else
            QCOMPARE(answered.split(u'\n'), text.split(u'\n'));
        QCOMPARE(brokenInMessage(root, message), QString());
        QCOMPARE(brokenInParts(message), QString());
    }

    void keepsItsPromises()
    {
        RandomMessage random(20'261'123, storedText(CORPUS "/../random.grammar"));
        for (int i = 0; i < 600; ++i) {
            const QString text = random.text(i % 3 == 0 ? 2 : i % 3 == 1 ? 1'000 : 20);
            const MessageCase message(text);
            VySmilElemSmil root;
            QCOMPARE(VySmilParser::parse(message.smil(), &root), 0);
            const QString broken = brokenInMessage(root, message) + brokenInParts(message);
            QVERIFY2(broken.isEmpty(), qPrintable(broken + u'\n' + text));
        }
    }

    // A deep tree, and everything that is made of it, takes no stack.
    void takesNoStackForDepth()
    {
        VySmilElemSmil root;
        VySmilElemBase *inner = &root;
        for (int i = 0; i < 100'000; ++i) {
            VySmilElemBase *child = VySmilElemBase::newElem(i % 3 == 0 ? "seq" : i % 3 == 1 ? "par" : "img");
            inner->getSubElements()->append(child);
            inner = child;
        }
        VySmilSlideShow show;
        QCOMPARE(show.fromTree(root), 0);
        QCOMPARE(show.slides.size(), 1);
        QCOMPARE(show.slides.first().media.size(), 33'333);
        const auto findings = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT);
        QVERIFY(findings.size() > 100'000);
        QVERIFY(findings.last().path.size() < 100);
        show.splitSlides();
        QCOMPARE(show.slides.size(), 33'333);
        show.layOut();
        show.toTree(&root);
        QCOMPARE(root.getSubElements()->at(1)->getSubElements()->count(), 33'333);
    }
};

QTEST_GUILESS_MAIN(TestMessage)
#include "tst_message.moc"
