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
    for (const VySmilPart &part : std::as_const(parts))
        text += "\n<" + part.contentId + "> " + part.contentLocation;
    return text.trimmed();
}

QString partsText(const MessageCase &message)
{
    QString text = QStringLiteral("\n%1x%2 %3")
                       .arg(message.options.screen.width())
                       .arg(message.options.screen.height())
                       .arg(message.options.defaultDurationMs);
    for (const VySmilPart &part : message.parts) {
        const QStringList fields{part.contentId, part.contentLocation, part.name, part.contentType};
        text += u'\n' + fields.join(u'|') + u'|' + QString::number(part.durationMs);
    }
    return text;
}

/// The tree that toTree() writes, regions and slides in lines of their own.
QString writtenText(const VySmilSlideShow &show, const QList<VySmilPart> &parts, VySmilElemSmil &root)
{
    show.toTree(&root, parts);
    QString text = treeText(root);
    for (const char *name : {"meta", "root-layout", "region", "body", "par"}) {
        for (const char *before : {" ", "("})
            text.replace(QString(before) + name + u'[', QString(before).trimmed() + "\n " + name + u'[');
    }
    return text;
}

QString answerOf(const QString &section, const MessageCase &message, VySmilElemSmil &root)
{
    // What was in a slide show before does not shine through.
    VySmilSlideShow show;
    show.slides.resize(3);
    show.unusedParts << 7;
    show.background = QColor(1, 2, 3);
    show.guesses = VySmilMedium::GUESS_PART;
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
        QTest::addColumn<int>("index");
        const QDir corpus(CORPUS);
        for (const QString &name : corpus.entryList({"*.message"})) {
            const QList<MessageCase> cases = MessageCase::casesOf(storedText(corpus.filePath(name)));
            for (int i = 0; i < cases.size(); ++i)
                QTest::addRow("%s: %s", qPrintable(name), qPrintable(cases.at(i).title))
                    << corpus.filePath(name) << i;
        }
    }
    void looksAtMessages()
    {
        QFETCH(QString, path);
        QFETCH(int, index);
        static const QStringList inputs{"parts", "options"};
        static const QStringList answers{"shows", "finds", "composes", "written", "split", "laid out"};
        QList<MessageCase> cases = MessageCase::casesOf(storedText(path));
        MessageCase &stored = cases[index];
        bool isAnswered = false;
        for (auto &[name, expected] : stored.sections) {
            if (inputs.contains(name))
                continue;
            QVERIFY2(answers.contains(name), qPrintable(name));
            VySmilElemSmil root;
            QCOMPARE(VySmilParser::parse(stored.smil(), &root), 0);
            const QString answer = answerOf(name, stored, root);
            if (renewsAnswers())
                expected = answer;
            QCOMPARE(answer, expected);
            isAnswered = true;
        }
        QVERIFY(isAnswered);
        QString text;
        for (const MessageCase &each : std::as_const(cases))
            text += (text.isEmpty() ? "" : "\n") + each.toText().trimmed() + '\n';
        QVERIFY(!renewsAnswers() || storeText(path, text));
        VySmilElemSmil root;
        VySmilParser::parse(stored.smil(), &root);
        QCOMPARE(brokenInMessage(root, stored), QString());
        QCOMPARE(brokenInParts(stored), QString());
    }

    void keepsItsPromises()
    {
        RandomMessage random(20'261'123);
        int clean = 0;
        for (int i = 0; i < 400; ++i) {
            VySmilElemSmil root;
            MessageCase message;
            if (i % 3 == 0)
                random.grow(root, 5);
            else
                random.fill(root, i % 3 == 1 ? 1'000 : 20);
            message.parts = random.parts(5);
            if (i % 4 == 0)
                message.options = {QSize(random.below(300), random.below(3) * 99), random.below(9'000)};
            const QString broken = brokenInMessage(root, message) + brokenInParts(message);
            QVERIFY2(broken.isEmpty(), qPrintable(broken + u'\n' + treeText(root) + partsText(message)));
            clean += VySmilConformance::check(root, VySmilConformance::LEVEL_RELAXED).isEmpty();
        }
        // What is clean stays so: that was tried.
        QVERIFY2(clean > 25, qPrintable(QString::number(clean)));
    }

    // Lists of up to eight parts, named, composed and checked; nothing is found at the strict level.
    void composesAnyParts()
    {
        static const char *const types[] = {"image/png", "video/mp4", "text/plain", "audio/amr"};
        static const char *const names[] = {"", "a.b", "A.b", "é.b", "a b"};
        RandomMessage random(7);
        for (int i = 0; i < 2'000; ++i) {
            QList<VySmilPart> parts;
            // All orders of four kinds first, with one name.
            for (int k = i < 256 ? 4 : 1 + random.below(8); k > 0; --k) {
                VySmilPart part;
                part.contentType = i < 256 ? types[(i >> (2 * k - 2)) % 4] : random.oneOf(types);
                part.name = i < 256 ? "a b" : random.oneOf(names);
                if (i >= 512)
                    (random.below(2) == 0 ? part.contentId : part.contentLocation) = random.name();
                part.durationMs = random.below(3) == 0 ? random.below(9'000) : -1;
                parts << part;
            }
            VySmilPart::nameAll(parts);
            VySmilSlideShow show;
            QCOMPARE(show.fromParts(parts), 0);
            VySmilElemSmil root;
            show.toTree(&root, parts);
            QCOMPARE(findingsText(root, parts), QString());
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
