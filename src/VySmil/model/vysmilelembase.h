// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMBASE_H
#define VYSMIL_VYSMILELEMBASE_H

#include <VySmil/model/vysmilbase.h>
#include <VySmil/model/vysmilelemlist.h>
#include <VySmil/vysmil.h>

#include <QList>
#include <QMap>
#include <QString>

#include <utility>

class QDomElement;

namespace VySmilPrivate {
class AttributeView;
}

/// One element of a SMIL document: a type name, attributes held as text, and an ordered list of sub-elements.
///
/// The attribute store is the only place where attribute values live: attribute groups and typed accessors
/// are views on it, and storing checks nothing. Names are compared exactly. What does not belong to the
/// vocabulary is found when a document is read or written.
///
/// An element owns its sub-elements (see VySmilElemList). The caller owns the root and whatever newElem()
/// gave until it stands in an owning list. No operation recurses, so that depth costs no stack, with one
/// exception: toString() calls the toString() of a class that a client derived, as it may be its own. Such
/// elements nested in each other take stack for each level; 10,000 levels fit into 8 MB.
///
/// \see [Editing a message](editing.md), [Results and findings](findings.md)
class VYSMIL_EXPORT VySmilElemBase : public VySmilBase
{
public:
    VySmilElemBase();
    /// An empty element that then runs copyFrom().
    VySmilElemBase(const VySmilElemBase &other);
    VySmilElemBase &operator=(const VySmilElemBase &) = delete;
    /// Deletes the sub-elements while their list owns them.
    ~VySmilElemBase() override;

    /// Takes over the attributes, the type name and the auto-deletion switch of \a other, and appends copies
    /// of its sub-elements, all levels of them, to its own, which stay. The copies are made by newElem() and
    /// own their children: an unknown element that is called "PAR" is copied as a par, and a class of the
    /// client's as what newElem() makes of its name. Copying an element onto itself changes nothing.
    virtual void copyFrom(const VySmilElemBase &other);

    /// The element's name: fixed by the class, but for VySmilElemUnknown.
    [[nodiscard]] virtual QString getElemType() const = 0;

    /// Whether the element accepts an attribute called exactly \a name, untrimmed, under \a version.
    [[nodiscard]] virtual bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const = 0;

    /// Appends the text of the element and its subtree: a line per tag, attributes in name order.
    ///
    /// Names and values are written trimmed, an empty one not at all. Ampersands, less-than signs, double
    /// quotes, tabs and line ends inside a value are written as references, characters that XML 1.0 cannot
    /// carry as U+FFFD. Of stored names that are the same once trimmed one is written. An attribute "nohref"
    /// is written as the bare word.
    ///
    /// \param out what is appended to
    /// \param strict stop at the first finding instead of going on
    /// \param status gets each finding unless it is null; it is never reset here
    /// \param version whose vocabulary is applied
    /// \return VySmil::RESULT_OK, or in a strict run VySmil::RESULT_INVALID_ELEMENT (with nothing of that
    ///         element appended) or VySmil::RESULT_INVALID_ATTR (with the attributes before it appended);
    ///         \a out then holds an unfinished text. What a text without findings holds,
    ///         VySmilParser::parse() reads back, within its bounds.
    virtual int toString(QString &out, bool strict, VySmil::STATUS_CODE *status,
                         VySmil::SMIL_VERSION version) const;

    /// Adds the attributes and child elements of a DOM element to this element, which must bear its name. Who
    /// has a text reads it with VySmilParser::parse(), which needs no DOM and is faster.
    ///
    /// Attributes are handled in ascending order of their names and stored trimmed; empty values are not
    /// stored (but "nohref" always is, with its name as its value). Text, comments and the like are dropped.
    ///
    /// \param elem what is read
    /// \param strict stop at the first finding instead of going on
    /// \param status gets each finding unless it is null; it is never reset here
    /// \param version whose vocabulary is applied
    /// \return VySmil::RESULT_OK;
    ///         VySmil::RESULT_UNUSABLE if the trimmed tag is not getElemType(), with nothing changed;
    ///         in a strict run VySmil::RESULT_INVALID_ELEMENT or VySmil::RESULT_INVALID_ATTR;
    ///         VySmil::RESULT_NO_OBJECT in any run. After a failure the element keeps what was complete
    ///         before: its own attributes up to the fault, and the children before the one in which it
    ///         happened. In a run that is not strict, a child whose tag does not fit stays, empty.
    virtual int fromDomElem(const QDomElement &elem, bool strict, VySmil::STATUS_CODE *status,
                            VySmil::SMIL_VERSION version);

    /// The value stored under \a name, or an empty (not null) string.
    [[nodiscard]] QString getAttribute(const QString &name) const;
    /// Stores \a value under \a name, unchanged and unchecked.
    void setAttribute(const QString &name, const QString &value);
    /// Removes \a name and its value, if present.
    void rmAttribute(const QString &name);
    /// A copy of all attributes, in ascending order of their names: the order in which they are written.
    [[nodiscard]] QMap<QString, QString> getAttributes() const;

    /// The number of children.
    [[nodiscard]] unsigned int getSubElementsCount() const noexcept;
    /// The number of children whose type name is exactly \a name, also where that is empty.
    [[nodiscard]] unsigned int getSubElementCounts(const QString &name) const;
    /// The child at position \a index among those whose type name is \a name, where an empty \a name stands
    /// for all children. Null if there is none. The child stays owned by the tree, and can be changed, also
    /// where this element is const.
    [[nodiscard]] VySmilElemBase *getSubElement(unsigned int index, const QString &name) const;
    /// Deletes the child that getSubElement() finds. False if there is none.
    bool rmSubElement(unsigned int index, const QString &name);
    /// Deletes all children.
    void clearSubElements();

    /// The element's own list: what the caller changes in it, the element sees.
    [[nodiscard]] VySmilElemList *getSubElements() noexcept { return &subElements; }
    /// The same to look at. That the list does not change is all that is promised: a const element does not
    /// make its children const.
    [[nodiscard]] const VySmilElemList *getSubElements() const noexcept { return &subElements; }
    /// Replaces the children by the entries of \a list, which the element owns from then on: whoever owns
    /// \a list must not let it delete them. Entries that are children already stay alive.
    void setSubElements(const VySmilElemList &list);

    /// A new element of the class that fits \a name, in any letter case and with blanks around it; a
    /// VySmilElemUnknown that bears \a name unchanged if none fits. Null only if the heap is exhausted.
    /// The caller owns it.
    [[nodiscard]] static VySmilElemBase *newElem(const QString &name);

    /// Whether \a name is exactly an element name of \a version, whatever this element is.
    [[nodiscard]] bool isValidElement(const QString &name, VySmil::SMIL_VERSION version) const noexcept;

protected:
    QString elemType; ///< the type name, for a class that has no fixed one

private:
    friend class VySmilPrivate::AttributeView;

    int writeStartTag(const QString &type, QString &out, bool strict, VySmil::STATUS_CODE *status,
                      VySmil::SMIL_VERSION version) const;
    qsizetype positionOf(unsigned int index, const QString &name) const;

    VySmilElemList subElements;
    QList<std::pair<QString, QString>> attributes; // in ascending order of names
};

#endif
