// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Whole documents: reading against what Qt offers, writing against QXmlStreamWriter, hostile text, growth,
// memory.

#include "comparison.h"
#include "messages.h"

#include "../tests/support/heapwatch.h"

#include <VySmil/VySmil>

#include <QDomDocument>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

constexpr qsizetype hostileSize = 300'000;

int parse(const QString &text, VySmilElemSmil &root)
{
    return VySmilParser::parse(text, &root);
}

void parseOnce(const QString &text)
{
    VySmilElemSmil root;
    benchmark::DoNotOptimize(parse(text, root));
}

void buildDomOnce(const QString &text)
{
    QDomDocument dom;
    benchmark::DoNotOptimize(dom.setContent(text));
}

void readStreamOnce(const QString &text)
{
    QXmlStreamReader reader(text);
    while (!reader.atEnd())
        reader.readNext();
    benchmark::DoNotOptimize(reader.hasError());
}

void benchParse(benchmark::State &state, int pars)
{
    const QString text = message(pars);
    compare(
        state, [&] { parseOnce(text); }, [&] { buildDomOnce(text); }, "QDomDocument::setContent", 0.25);
}

void benchParseAgainstStream(benchmark::State &state, int pars)
{
    const QString text = message(pars);
    compare(
        state, [&] { parseOnce(text); }, [&] { readStreamOnce(text); }, "a loop of QXmlStreamReader", 0.8);
}

// A processing instruction is not plain: Qt reads the text.
void benchParseByQt(benchmark::State &state, int pars)
{
    const QString text = message(pars).replace(QLatin1String("<smil>"), QLatin1String("<smil><?x?>"));
    compare(
        state, [&] { parseOnce(text); }, [&] { buildDomOnce(text); }, "QDomDocument::setContent", 0.9);
}

// What a client without a tree of elements would hold.
struct PlainElement
{
    QString name;
    QList<std::pair<QString, QString>> attributes;
    std::vector<PlainElement> children;
};

PlainElement plain(const VySmilElemBase &elem)
{
    PlainElement copy{elem.getElemType(), {}, {}};
    const QMap<QString, QString> attributes = elem.getAttributes();
    for (auto it = attributes.begin(); it != attributes.end(); ++it)
        copy.attributes.append({it.key(), it.value()});
    for (const VySmilElemBase *child : *elem.getSubElements())
        copy.children.push_back(plain(*child));
    return copy;
}

void writeByStream(QXmlStreamWriter &writer, const PlainElement &elem)
{
    writer.writeStartElement(elem.name);
    for (const auto &[name, value] : elem.attributes)
        writer.writeAttribute(name, value);
    for (const PlainElement &child : elem.children)
        writeByStream(writer, child);
    writer.writeEndElement();
}

void benchAssemble(benchmark::State &state, int pars)
{
    VySmilElemSmil root;
    parse(message(pars), root);
    const PlainElement document = plain(root);
    const auto subject = [&root] {
        QString out;
        VySmilParser::assemble(&root, out, true);
        benchmark::DoNotOptimize(out);
    };
    const auto baseline = [&document] {
        QString out;
        QXmlStreamWriter writer(&out);
        writeByStream(writer, document);
        benchmark::DoNotOptimize(out);
    };
    compare(state, subject, baseline, "QXmlStreamWriter", 0.45);
}

// A piece of text again and again, up to the size, in a document.
QString flood(const QString &piece, const QString &before = QStringLiteral("<smil>"),
              const QString &after = QStringLiteral("</smil>"))
{
    return before + piece.repeated(hostileSize / piece.size()) + after;
}

QString nested(int depth)
{
    return QStringLiteral("<a>").repeated(depth) + QStringLiteral("</a>").repeated(depth);
}

QString attributes(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QStringLiteral(" a%1=\"\"").arg(i);
    return text;
}

void benchHostile(benchmark::State &state, const QString &text, double bound)
{
    const QString ordinary = messageOfSize(hostileSize);
    const double scale = static_cast<double>(ordinary.size()) / static_cast<double>(text.size());
    compare(
        state, [&] { parseOnce(text); }, [&] { parseOnce(ordinary); }, "an ordinary document, per character",
        bound, scale);
}

// How much dearer a character gets from 1 KB to 5 MB, against the same figure of QDomDocument.
void benchGrowth(benchmark::State &state)
{
    struct Times
    {
        QString text;
        std::vector<double> parse;
        std::vector<double> dom;
        double ratio() { return median(parse) / median(dom); }
    };
    Times small{messageOfSize(1'000), {}, {}};
    Times large{messageOfSize(5'000'000), {}, {}};
    for (auto _ : state) {
        double total = 0;
        for (Times *times : {&small, &large}) {
            total += measure(times->dom, [&] { buildDomOnce(times->text); });
            total += measure(times->parse, [&] { parseOnce(times->text); });
        }
        state.SetIterationTime(total);
    }
    report(state, large.ratio() / small.ratio(), "growth of QDomDocument::setContent", 1.0);
}

// Two threads that each read documents of their own, against one thread that reads as many as one of them.
void benchThreads(benchmark::State &state)
{
    const QString text = message(100);
    const auto many = [&text] {
        for (int i = 0; i < 20; ++i)
            parseOnce(text);
    };
    const auto two = [&many] {
        std::thread other(many);
        many();
        other.join();
    };
    compare(state, two, many, "one thread with half of the work", 1.2);
}

HeapUse heapOfTree(const QString &text)
{
    return heapUse([&text] {
        auto root = std::make_unique<VySmilElemSmil>();
        parse(text, *root);
        return root;
    });
}

void benchMemory(benchmark::State &state)
{
    const QString text = message(3'000);
    const HeapUse dom = heapUse([&text] {
        auto document = std::make_unique<QDomDocument>();
        document->setContent(text);
        return document;
    });
    for (auto _ : state)
        state.SetIterationTime(1);
    report(state, heapOfTree(text).inUse / dom.inUse, "heap of its QDomDocument", 0.25);
}

void benchPeak(benchmark::State &state)
{
    const HeapUse tree = heapOfTree(message(3'000));
    for (auto _ : state)
        state.SetIterationTime(1);
    report(state, tree.peak / tree.inUse, "heap of the tree", 2.0);
}

const bool registered = [] {
    for (const int pars : {3, 100, 3'000}) {
        const std::string label = ", " + std::to_string(pars) + " pars";
        addBenchmark("parse and destroy the tree" + label, benchParse, pars);
        addBenchmark("parse and destroy the tree" + label, benchParseAgainstStream, pars);
        addBenchmark("parse, not plain" + label, benchParseByQt, pars);
        addBenchmark("assemble" + label, benchAssemble, pars);
    }

    const int deep = 25'000;
    const QString shut = QStringLiteral("</smil>");
    addBenchmark("refused: nesting", benchHostile, nested(deep * 12 / 7), 0.2);
    addBenchmark("refused: nesting, not closed", benchHostile, QStringLiteral("<smil>").repeated(deep * 2),
                 0.2);
    addBenchmark("refused: attributes", benchHostile,
                 QStringLiteral("<smil") + attributes(deep) + QStringLiteral("></smil>"), 0.2);
    addBenchmark("refused: nesting behind comments", benchHostile,
                 flood(QStringLiteral("<!--x-->")).chopped(shut.size()) + nested(300) + shut, 0.2);
    addBenchmark("refused: DTD subset", benchHostile,
                 flood(QStringLiteral("<!ATTLIST a b CDATA \"c\">"), QStringLiteral("<!DOCTYPE a ["),
                       QStringLiteral("]><a/>")),
                 0.2);
    addBenchmark("read: comments", benchHostile, flood(QStringLiteral("<!---->")), 10.0);
    addBenchmark("read: 256 attributes everywhere", benchHostile,
                 flood(QStringLiteral("<a") + attributes(256) + QStringLiteral("/>")), 10.0);
    addBenchmark("read: depth 256 throughout", benchHostile, flood(nested(255)), 10.0);

    benchmark::RegisterBenchmark("parse, per character, 5 MB to 1 KB", benchGrowth)
        ->UseManualTime()
        ->Iterations(5);
    addBenchmark("parse, 100 pars, two threads", benchThreads);
    addBenchmark("tree in memory, 3000 pars", benchMemory);
    addBenchmark("peak of the heap in parse, 3000 pars", benchPeak);
    return true;
}();

} // namespace
