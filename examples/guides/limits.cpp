// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Hostile texts and how they end.

#include <VySmil/VySmil>

#include <cstdio>

int main()
{
    const auto attempt = [](const char *what, const QString &text) {
        VySmilElemSmil root;
        const int result = VySmilParser::parse(text, &root, false, nullptr, VySmil::SMIL_VER_DEFAULT);
        std::printf("%-28s %8lld characters: %d\n", what, static_cast<long long>(text.size()), result);
    };
    const auto nested = [](int depth) {
        return "<smil>" + QString("<par>").repeated(depth - 1) + QString("</par>").repeated(depth - 1) +
               "</smil>";
    };
    attempt("greatest depth", nested(VySmilParser::MAX_DEPTH));
    attempt("one deeper", nested(VySmilParser::MAX_DEPTH + 1));
    attempt("much deeper", nested(100'000));
    attempt("never closed", QString("<smil>").repeated(100'000));

    QString attributes;
    for (int i = 0; i < 100'000; ++i)
        attributes += QString(" a%1=''").arg(i);
    attempt("attributes without end", "<smil" + attributes + "/>");
    attempt("entities of entities", "<!DOCTYPE x [<!ENTITY a '&b;&b;'><!ENTITY b '&c;&c;'>]><x/>");
    attempt("markup in a comment", "<smil><!--" + QString("<par>").repeated(1'000) + "--></smil>");
    return 0;
}
