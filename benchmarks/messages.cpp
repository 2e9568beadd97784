// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Whole messages with their parts: showing and checking against reading, writing back against assembling.

#include "messages.h"
#include "comparison.h"

#include <VySmil/VySmil>

namespace {

// A part for each medium of message().
QList<VySmilPart> partsOf(int pars)
{
    QList<VySmilPart> parts;
    const auto add = [&parts](const char *name, int number, const char *type) {
        VySmilPart part;
        part.name = QString::fromLatin1(name).arg(number);
        part.contentLocation = part.name;
        part.contentId = u'<' + part.name + u'>';
        part.contentType = QString::fromLatin1(type);
        parts << part;
    };
    for (int i = 0; i < pars; ++i) {
        add("picture%1.jpg", i, "image/jpeg");
        add("text%1.txt", i, "text/plain");
        add("sound%1.amr", i, "audio/amr");
    }
    return parts;
}

void showSlides(const VySmilElemSmil &root, const QList<VySmilPart> &parts)
{
    VySmilSlideShow show;
    benchmark::DoNotOptimize(show.fromTree(root, parts));
}

void check(const VySmilElemSmil &root, const QList<VySmilPart> &parts)
{
    benchmark::DoNotOptimize(VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts));
}

using Looking = void (*)(const VySmilElemSmil &root, const QList<VySmilPart> &parts);

void benchLooking(benchmark::State &state, Looking look, int pars, double bound)
{
    const QString text = message(pars);
    const QList<VySmilPart> parts = partsOf(pars);
    VySmilElemSmil root;
    VySmilParser::parse(text, &root);
    const auto baseline = [&text] {
        VySmilElemSmil read;
        benchmark::DoNotOptimize(VySmilParser::parse(text, &read));
    };
    compare(
        state, [&] { look(root, parts); }, baseline, "parse and destroy the tree", bound);
}

// The same per slide of a long message as of a short one.
void benchLookingGrowth(benchmark::State &state, Looking look)
{
    VySmilElemSmil shortRoot;
    VySmilElemSmil longRoot;
    VySmilParser::parse(message(100), &shortRoot);
    VySmilParser::parse(message(3'000), &longRoot);
    const QList<VySmilPart> shortParts = partsOf(100);
    const QList<VySmilPart> longParts = partsOf(3'000);
    compare(
        state, [&] { look(longRoot, longParts); }, [&] { look(shortRoot, shortParts); }, "100 pars", 1.5,
        100.0 / 3'000);
}

// The slides of message(), each with what phones show one of, twice, as a gallery has it.
VySmilSlideShow gallery(int pars, const QList<VySmilPart> &parts)
{
    VySmilElemSmil root;
    VySmilParser::parse(message(pars), &root);
    VySmilSlideShow show;
    show.fromTree(root, parts);
    for (qsizetype i = 0; i + 1 < show.slides.size(); ++i)
        show.slides[i].media += show.slides.takeAt(show.slides.size() - 1).media;
    return show;
}

void splitSlides(const VySmilSlideShow &show, const QList<VySmilPart> &)
{
    VySmilSlideShow split = show;
    split.splitSlides();
    benchmark::DoNotOptimize(split);
}

void writeTree(const VySmilSlideShow &show, const QList<VySmilPart> &parts)
{
    VySmilElemSmil root;
    show.toTree(&root, parts);
    benchmark::DoNotOptimize(root);
}

using Composing = void (*)(const VySmilSlideShow &show, const QList<VySmilPart> &parts);

void benchComposing(benchmark::State &state, Composing compose, int pars)
{
    const QList<VySmilPart> parts = partsOf(pars);
    const VySmilSlideShow show = gallery(pars, parts);
    VySmilElemSmil root;
    show.toTree(&root, parts);
    const auto baseline = [&root] {
        QString out;
        VySmilParser::assemble(&root, out, true);
        benchmark::DoNotOptimize(out);
    };
    compare(
        state, [&] { compose(show, parts); }, baseline, "assemble what is written", 1.5);
}

void benchComposingGrowth(benchmark::State &state, Composing compose)
{
    const QList<VySmilPart> shortParts = partsOf(100);
    const QList<VySmilPart> longParts = partsOf(3'000);
    const VySmilSlideShow shortShow = gallery(100, shortParts);
    const VySmilSlideShow longShow = gallery(3'000, longParts);
    compare(
        state, [&] { compose(longShow, longParts); }, [&] { compose(shortShow, shortParts); }, "100 pars",
        1.5, 100.0 / 3'000);
}

const bool registered = [] {
    struct LookingRow
    {
        const char *label;
        Looking look;
        double bound;
    };
    for (const auto &[label, look, bound] :
         {LookingRow{"slide show, ", &showSlides, 1.5}, LookingRow{"check, ", &check, 2.0}}) {
        for (const int pars : {3, 100, 3'000})
            addBenchmark(label + std::to_string(pars) + " pars and their parts", benchLooking, look, pars,
                         bound);
        addBenchmark(label + std::string("per slide of 3000 pars"), benchLookingGrowth, look);
    }
    for (const auto &[label, compose] :
         {std::pair("write the tree, ", &writeTree), std::pair("split the slides, ", &splitSlides)}) {
        for (const int pars : {3, 100, 3'000})
            addBenchmark(label + std::to_string(pars) + " pars and their parts", benchComposing, compose,
                         pars);
        addBenchmark(label + std::string("per slide of 3000 pars"), benchComposingGrowth, compose);
    }
    return true;
}();

} // namespace
