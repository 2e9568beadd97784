// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "lettering.h"

#include "../printable.h"

#include <QRegularExpression>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr double narrowest = 4.7;
constexpr char32_t ellipsis = 0x2026;

// About as wide as a character gets in the widest of the common fonts; a clip holds what is wider still.
double widthOfCharacter(char32_t c)
{
    static const std::u32string narrow = U" !'(),./:;[]fijlrt|";
    static const std::u32string wide = U"%@MWmw";
    if (c >= 0x80)
        return QChar::isMark(c) || QChar::category(c) == QChar::Other_Format ? 0
               : c < 0x1100                                                  ? 8
               : c < 0x10000                                                 ? 12
                                                                             : 16;
    if (narrow.find(c) != std::u32string::npos)
        return narrowest;
    return wide.find(c) != std::u32string::npos ? 11.5 : QChar::isUpper(c) ? 8.8 : 7.5;
}

double widthOfCharacters(const std::u32string &characters)
{
    double width = 0;
    for (const char32_t c : characters)
        width += widthOfCharacter(c);
    return width;
}

// How many code units of a text can be seen at most in a line, those that take no width among them.
qsizetype mostUnits(double width)
{
    return static_cast<qsizetype>(4 * std::max(width, 0.0) / narrowest);
}

// The longest beginning of the characters that fits with "…" behind it.
QString ended(std::u32string characters, double width)
{
    double used = widthOfCharacters(characters) + widthOfCharacter(ellipsis);
    while (!characters.empty() && used > width) {
        used -= widthOfCharacter(characters.back());
        characters.pop_back();
    }
    while (!characters.empty() && characters.back() == U' ')
        characters.pop_back();
    return QString::fromStdU32String(characters + ellipsis);
}

// The lines of a paragraph, at most as many as are asked for.
std::vector<std::u32string> brokenIntoLines(const QString &paragraph, double width, int maxLines)
{
    std::vector<std::u32string> lines(1);
    double used = 0;
    const auto nextLine = [&lines, &used] {
        lines.emplace_back();
        used = 0;
    };
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, paragraph);
    qsizetype from = 0;
    for (qsizetype to = finder.toNextBoundary(); to > from && lines.size() <= static_cast<size_t>(maxLines);
         from = std::exchange(to, finder.toNextBoundary())) {
        const QString word = paragraph.mid(from, to - from);
        if (!lines.back().empty() && used + widthOf(word.trimmed()) > width)
            nextLine();
        for (const char32_t c : word.toStdU32String()) {
            // A word that is wider than a line is broken anywhere; blanks may stand out.
            const double more = c == U' ' ? 0 : widthOfCharacter(c);
            if (used + more > width && more > 0 && !lines.back().empty())
                nextLine();
            lines.back() += c;
            used += widthOfCharacter(c);
        }
    }
    return lines;
}

} // namespace

double widthOf(const QString &text)
{
    return widthOfCharacters(text.toStdU32String());
}

QString elided(const QString &text, double width)
{
    const qsizetype most = mostUnits(width);
    const auto isolated = [](const QString &shown) { return QChar(0x2068) + shown + QChar(0x2069); };
    if (const QString whole = printable(text.left(most)); text.size() <= most && widthOf(whole) <= width)
        return isolated(whole);
    const std::u32string front = printable(text.left(most)).toStdU32String();
    const std::u32string back = printable(text.right(most)).toStdU32String();
    size_t left = 0;
    size_t right = 0;
    double used = widthOfCharacter(ellipsis);
    while (left < front.size() && right < back.size()) {
        used += widthOfCharacter(left > right ? back[back.size() - right - 1] : front[left]);
        if (used > width)
            break;
        ++(left > right ? right : left);
    }
    return isolated(
        QString::fromStdU32String(front.substr(0, left) + ellipsis + back.substr(back.size() - right)));
}

QList<Line> wrapped(const QString &text, double width, int maxLines)
{
    // Controls that would turn the text around, and others, take no room here.
    QString visible = text.left(mostUnits(width) * maxLines);
    bool isCut = visible.size() < text.size();
    static const QRegularExpression lineEnd(QStringLiteral("\\r\\n|[\\r\\x{2028}\\x{2029}]"));
    static const QRegularExpression control(
        QStringLiteral("[^\\P{Cc}\\n]|[\\x{202a}-\\x{202e}\\x{2066}-\\x{2069}]"));
    visible.replace(lineEnd, QStringLiteral("\n")).replace(u'\t', u' ').remove(control);
    QList<Line> lines;
    const QStringList paragraphs = visible.split(u'\n');
    for (const QString &paragraph : paragraphs) {
        const std::vector<std::u32string> broken = brokenIntoLines(paragraph, width, maxLines + 1);
        for (const std::u32string &line : broken)
            lines << Line{QString::fromStdU32String(line), paragraph.isRightToLeft()};
        isCut = isCut || lines.size() > maxLines;
        if (lines.size() > maxLines)
            break;
    }
    lines.resize(std::min(lines.size(), qsizetype(maxLines)));
    if (isCut && !lines.isEmpty())
        lines.last().text = ended(lines.last().text.toStdU32String(), width);
    return lines;
}
