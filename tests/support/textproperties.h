// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_TEXTPROPERTIES_H
#define VYSMIL_TESTS_TEXTPROPERTIES_H

#include "treetext.h"

#include <VySmil/VySmil>

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <memory>

// What holds of any text. Each function says what does not, and nothing where all does.

/// Whether a name is one that mending keeps.
inline bool isKept(QStringView name)
{
    static const QRegularExpression form(QStringLiteral("^[A-Za-z_][\\w.-]*(:[A-Za-z_][\\w.-]*)?$"));
    return name.size() <= 256 && form.match(name.toString()).hasMatch();
}

/// An element of a name in any letter case.
inline VySmilElemBase *elemInAnyCase(const QString &name)
{
    VySmilElemBase *elem = VySmilElemBase::newElem(name.toLower());
    if (auto *unknown = dynamic_cast<VySmilElemUnknown *>(elem))
        unknown->setElemType(name);
    return elem;
}

/// Stores the attributes under the names that they should have. True if that changes one.
inline bool storeAttributes(VySmilElemBase &elem, const QXmlStreamAttributes &attributes)
{
    static const QStringList known =
        QStringLiteral("id left top width height fit name content dur begin end src alt region").split(u' ');
    bool isChanged = false;
    QStringList right;
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QString name = attribute.qualifiedName().toString();
        const QString lower = name.toLower();
        const bool isWrong =
            name != lower && known.contains(lower) && elem.isValidAttr(lower, VySmil::SMIL_VER_DEFAULT);
        const QString stored = isWrong ? lower : name;
        const QString value = name == u"nohref" ? name : attribute.value().trimmed().toString();
        isChanged = isChanged || isWrong;
        if (!isKept(name) || value.isEmpty() || right.contains(stored) ||
            (isWrong && !elem.getAttribute(stored).isEmpty()))
            continue;
        elem.setAttribute(stored, value);
        if (!isWrong)
            right << stored;
    }
    return isChanged;
}

/// The tree of a text that parse() reads once its names are put right: the text itself if they are.
inline QString treeOfRightNames(const QString &text, bool &isChanged)
{
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    VySmilElemUnknown top;
    QList<VySmilElemBase *> path{&top};
    isChanged = false;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::EndElement)
            path.removeLast();
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QString name = reader.qualifiedName().toString();
        path << path.last();
        if (!isKept(name))
            continue;
        std::unique_ptr<VySmilElemBase> elem(elemInAnyCase(name));
        isChanged = isChanged || elem->getElemType() != name;
        isChanged = storeAttributes(*elem, reader.attributes()) || isChanged;
        path[path.size() - 2]->getSubElements()->append(elem.get());
        path.last() = elem.release();
    }
    return top.getSubElements()->isEmpty() ? QString() : treeText(*top.getSubElements()->at(0));
}

/// explain() tells what parse() does.
inline QString brokenInExplanation(const QString &text)
{
    const VySmilTextFault fault = VySmilText::explain(text);
    VySmilElemSmil root;
    const int result = VySmilParser::parse(text, &root);
    const bool isUnusable =
        fault.reason == VySmilTextFault::FAULT_EMPTY || fault.reason == VySmilTextFault::FAULT_NOT_SMIL;
    const int expected = fault.reason == VySmilTextFault::FAULT_NONE ? 0 : isUnusable ? 3 : -1;
    if (result != expected)
        return QStringLiteral("parse() gives %1, but %2").arg(result).arg(fault.toString());
    const bool hasPlace = result == -1 || fault.reason == VySmilTextFault::FAULT_NOT_SMIL;
    if ((fault.position >= 0) != hasPlace || fault.position > text.size())
        return QStringLiteral("a fault out of the text");
    if (hasPlace ? fault.column < 1 || fault.line < 1 : fault.column + fault.line != 0)
        return QStringLiteral("a place that is none");
    if (fault.message.isEmpty() != (result == 0))
        return QStringLiteral("no word of what is wrong");
    return {};
}

/// What a text with a root is mended to reads, comes back as it is, and is written as a tree writes it.
inline QString brokenInMended(const QString &text)
{
    const QString mended = VySmilText::mend(text);
    VySmilElemSmil root;
    if (VySmilParser::parse(mended, &root) != 0)
        return QStringLiteral("what was mended does not read: ") + mended;
    if (VySmilText::mend(mended) != mended)
        return QStringLiteral("what was mended is mended again: ") + mended;
    QString written;
    VySmilParser::assemble(&root, written);
    if (mended != text && !mended.contains(u"nohref") && written != mended)
        return QStringLiteral("what was mended is not as it is written: ") + mended;
    return {};
}

/// A text that reads loses nothing.
inline QString brokenInReadable(const QString &text)
{
    VySmilElemSmil root;
    if (VySmilParser::parse(text, &root) != 0)
        return {};
    bool isChanged = false;
    const QString tree = treeOfRightNames(text.mid(text.indexOf(u"<smil")).trimmed(), isChanged);
    const QString mended = VySmilText::mend(text);
    if (!isChanged)
        return mended == text ? QString() : QStringLiteral("mended without need: ") + mended;
    VySmilElemSmil mendedRoot;
    VySmilParser::parse(mended, &mendedRoot);
    return treeText(mendedRoot) == tree
               ? QString()
               : QStringLiteral("another tree: ") + treeText(mendedRoot) + QStringLiteral("\nnot ") + tree;
}

inline QString brokenInText(const QString &text)
{
    QString broken = brokenInExplanation(text);
    if (broken.isEmpty() && VySmilText::mend(text) != text)
        broken = brokenInMended(text);
    // There is a root where it is put.
    if (broken.isEmpty())
        broken = brokenInMended(QStringLiteral("<Smil ") + text);
    // In a value each line end is a blank, but in that of a source; half a character is kept by Qt alone.
    const QString whole = QString::fromUtf8(text.toUtf8());
    if (broken.isEmpty())
        broken = brokenInReadable(QString(whole).replace(u'\n', u' ').replace(u'\r', u' '));
    return broken;
}

#endif
