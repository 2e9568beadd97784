// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_DRAWN_H
#define VYSMIL_TESTS_DRAWN_H

// Pictures that the program "storyboard" drew, and what is in them.

#include "program.h"

#include <QDomDocument>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <functional>

using Files = QMap<QString, QByteArray>;

// Runs the program in a folder with these files.
inline Said draw(const Files &files, const QStringList &arguments = {"."},
                 const QByteArray &input = QByteArray())
{
    const QTemporaryDir dir;
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString path = dir.filePath(file.key());
        if (!write(path, file.value()) ||
            (file.key().startsWith("huge") && !QFile::resize(path, 104'857'600)))
            return {-1, QByteArray(), "the test cannot write"};
    }
    Said said = run(arguments, input, dir.path());
    if (QFile written(dir.filePath("out/a.svg")); written.open(QIODevice::ReadOnly))
        said.output += "in a file: " + written.readAll();
    return said;
}

// What keeps a picture from being one that nobody need fear; nothing if it is fine.
inline QString faultIn(const QByteArray &svg)
{
    static const QStringList elements{"svg", "style", "defs", "symbol",   "image", "use",
                                      "g",   "rect",  "path", "clipPath", "text",  "line"};
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isDTD() || reader.isProcessingInstruction())
            return "markup that may load something";
        if (!reader.isStartElement())
            continue;
        if (!elements.contains(reader.name().toString()))
            return "element " + reader.name().toString();
        const auto attributes = reader.attributes();
        for (const auto &attribute : attributes) {
            const QString name = attribute.name().toString();
            const QString value = attribute.value().toString();
            if (name.startsWith("on") || (value.contains("url(") && !value.startsWith("url(#")))
                return name + "=" + value;
            if (name == "href" && !value.startsWith('#') && !value.startsWith("data:image/"))
                return name + "=" + value.left(40);
        }
    }
    return reader.hasError() ? reader.errorString() : QString();
}

inline QList<QDomElement> all(const QDomElement &elem, const std::function<bool(const QDomElement &)> &fits)
{
    QList<QDomElement> found;
    for (QDomElement child = elem.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (fits(child))
            found << child;
        found += all(child, fits);
    }
    return found;
}

inline QList<QDomElement> withClass(const QDomElement &elem, const QString &name)
{
    return all(elem, [&name](const auto &e) { return e.attribute("class").split(u' ').contains(name); });
}

inline QList<QDomElement> named(const QDomElement &elem, const QString &name)
{
    return all(elem, [&name](const auto &e) { return e.tagName() == name; });
}

inline QList<double> numbers(const QDomElement &elem, const QStringList &names)
{
    QList<double> values;
    for (const QString &name : names)
        values << elem.attribute(name).toDouble();
    return values;
}

/// The picture; an empty one if it is none that anyone may show.
inline QDomElement pictureOf(QDomDocument &dom, const Said &drawn)
{
    const QString fault = faultIn(drawn.output);
    if (drawn.exitCode == 0 && drawn.errors.isEmpty() && fault.isEmpty())
        dom.setContent(drawn.output);
    else
        qWarning() << drawn.exitCode << drawn.errors << fault;
    return dom.documentElement();
}

/// The group of each slide of a picture.
inline QList<QDomElement> slidesOf(const QDomElement &picture)
{
    return all(picture, [](const auto &e) { return e.attribute("id").startsWith("slide"); });
}

// What a person reads, without the marks around names.
inline QString readable(const QDomElement &elem)
{
    return elem.text().remove(QChar(0x2068)).remove(QChar(0x2069));
}

#endif
