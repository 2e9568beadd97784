// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_ANSWEREDLINES_H
#define VYSMIL_TESTS_ANSWEREDLINES_H

#include "storedanswer.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QStringList>

// Files of lines with what is made of each below it, behind a tab.

/// What a line stands for: "\n" and "\u00a0" for a character, "\{9 <par a#=''>}" for nine times that with the
/// number at "#".
inline QString unescaped(QString line)
{
    static const QRegularExpression repeat(R"(\\\{(\d+) (.*?)\})");
    for (QRegularExpressionMatch match; (match = repeat.match(line)).hasMatch();) {
        QString repeated;
        for (int i = 0; i < match.captured(1).toInt(); ++i)
            repeated += match.captured(2).replace(u'#', QString::number(i));
        line.replace(match.capturedStart(), match.capturedLength(), repeated);
    }
    for (qsizetype at = 0; (at = line.indexOf("\\u", at)) >= 0; ++at)
        line.replace(at, 6, QChar(line.mid(at + 2, 4).toUShort(nullptr, 16)));
    return line.replace("\\r", "\r").replace("\\n", "\n");
}

/// An answer on one line; a long one is cut, and what is cut off told by a checksum.
inline QString escaped(const QString &answer)
{
    QString text;
    for (const QChar c : QString::fromUtf8(answer.toUtf8())) {
        const QString code = QString("[U+%1]").arg(c.unicode(), 4, 16, QChar(u'0'));
        const bool isSeen = c == u' ' || c.isSurrogate() || (c.isPrint() && !c.isSpace());
        text += c == u'\n' ? QString("~") : isSeen ? QString(c) : code;
    }
    if (text.size() <= 1'000)
        return text;
    const QByteArray sum = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex();
    return text.left(99) + QString("... %1 characters, %2").arg(text.size()).arg(sum.constData());
}

/// The first line that differs from what \a answersTo gives for those above it; empty if none does.
template <typename AnswersTo>
QString wrongAnswer(const QString &path, AnswersTo answersTo)
{
    const QString stored = storedText(path);
    QString given;
    for (const QString &line : stored.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'\t'))
            continue;
        given += line + u'\n';
        for (const QString &answer : answersTo(line))
            given += u'\t' + escaped(answer) + u'\n';
    }
    if (const qsizetype at = given.indexOf("\tbroken: "); at >= 0)
        return given.mid(std::max<qsizetype>(at - 300, 0), 600);
    if (renewsAnswers() && storeText(path, given))
        return {};
    const QStringList expected = stored.split(u'\n');
    const QStringList lines = given.split(u'\n');
    for (qsizetype i = 0; i < std::max(lines.size(), expected.size()); ++i) {
        if (lines.value(i) != expected.value(i))
            return QString("line %1: %2\n  stored: %3").arg(i + 1).arg(lines.value(i), expected.value(i));
    }
    return stored.isEmpty() ? "nothing is stored" : QString();
}

#endif
