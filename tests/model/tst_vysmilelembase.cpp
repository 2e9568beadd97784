// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/treetext.h"

#include <VySmil/VySmil>

#include <QDomDocument>
#include <QRandomGenerator>
#include <QTest>

#include <memory>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<VySmilElemRegion>, "groups must not be shared");
static_assert(!std::is_copy_assignable_v<VySmilElemSmil>, "elements are copied by copyFrom()");

namespace {

/// Counts how often an element was destroyed, and how many children it still had then.
class CountingElem : public VySmilElemUnknown
{
public:
    explicit CountingElem(int &counter, int *children = nullptr) : destroyed(counter), childrenSeen(children)
    {
    }
    ~CountingElem() override
    {
        ++destroyed;
        if (childrenSeen)
            *childrenSeen += static_cast<int>(getSubElementsCount());
    }

private:
    int &destroyed;
    int *childrenSeen;
};

VySmilElemBase *addChild(VySmilElemBase &parent, const char *name)
{
    VySmilElemBase *child = VySmilElemBase::newElem(QString::fromLatin1(name));
    parent.getSubElements()->append(child);
    return child;
}

} // namespace

class TestVySmilElemBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupsSeeTheSameStore()
    {
        VySmilElemRegion region;
        QVERIFY(region.getAttribute("a").isEmpty() && !region.getAttribute("a").isNull());
        VySmilAttrBase &group = *region.getCommonAttrsProxy();
        QCOMPARE(group.getRefElem(), static_cast<VySmilElemBase *>(&region));
        region.setAttribute("a", "first");
        region.setAttribute("Width", " 2 ");
        group.setAttribute("", "");
        group.setAttribute("id", "r");
        QCOMPARE(treeText(region), QString("region[= Width= 2  a=first id=r]"));
        group.rmAttribute("a");
        QVERIFY(group.getAttribute("a").isEmpty() && !group.getAttribute("a").isNull());
        QCOMPARE(treeText(region), QString("region[= Width= 2  id=r]"));
    }

    void storeIsAMap()
    {
        const QStringList names{
            "", " ", "a", "ab", "b", "B", "dur", QString(QChar(0)), QString(2, QChar(0xd800))};
        QRandomGenerator random(1);
        const auto any = [&] { return names.at(random.bounded(int(names.size()))); };
        VySmilElemUnknown elem;
        QMap<QString, QString> expected;
        for (int i = 0; i < 2000; ++i) {
            const VySmilElemUnknown before(elem);
            const QMap<QString, QString> expectedBefore = expected;
            const QString name = any();
            if (random.bounded(4) == 0) {
                elem.rmAttribute(name);
                expected.remove(name);
            } else {
                const QString value = any().repeated(random.bounded(9));
                elem.setAttribute(name, value);
                expected.insert(name, value);
            }
            QCOMPARE(elem.getAttribute(name), expected.value(name));
            QCOMPARE(elem.getAttributes(), expected);
            QCOMPARE(before.getAttributes(), expectedBefore);
        }
    }

    void aClientMayKeepTheNamesThatItChecks()
    {
        struct KeepingElem : VySmilElemUnknown
        {
            bool isValidAttr(const QString &name, VySmil::SMIL_VERSION) const override
            {
                kept.append(name);
                return true;
            }
            mutable QStringList kept;
        };
        KeepingElem elem;
        elem.setElemType("par");
        elem.setAttribute("x", "1");
        QString out;
        elem.toString(out, false, nullptr, VySmil::SMIL_VER_DEFAULT);
        elem.rmAttribute("x");
        elem.setAttribute("y", "1");
        QCOMPARE(elem.kept, QStringList("x"));
    }

    void lookupsFilterByName()
    {
        VySmilElemBody body;
        for (const char *name : {"par", "img", "par"})
            addChild(body, name);
        QCOMPARE(body.getSubElementsCount(), 3u);
        QCOMPARE(body.getSubElementCounts("par"), 2u);
        QCOMPARE(body.getSubElementCounts(""), 0u);
        addChild(body, "");
        QCOMPARE(body.getSubElementCounts(""), 1u);
        QCOMPARE(body.getSubElement(1, "par"), body.getSubElements()->at(2));
        QCOMPARE(body.getSubElement(1, ""), body.getSubElements()->at(1));
        QVERIFY(!body.getSubElement(2, "par") && !body.getSubElement(4, "") && !body.getSubElement(0, "PAR"));
        QVERIFY(!body.getSubElement(0xffffffffu, ""));
        QVERIFY(body.rmSubElement(0, "img"));
        QVERIFY(!body.rmSubElement(0, "img"));
        QVERIFY(body.rmSubElement(2, ""));
        QCOMPARE(treeText(body), QString("body(par par)"));
    }

    void headAndBodyAreFoundAnywhere()
    {
        VySmilElemSmil root;
        QVERIFY(!root.getHead() && !root.getBody());
        VySmilElemBase *body = addChild(root, "body");
        VySmilElemBase *head = addChild(root, "head");
        addChild(root, "head");
        QCOMPARE(root.getHead(), head);
        QCOMPARE(root.getBody(), body);
    }

    void listKeepsItsRules()
    {
        int destroyed = 0;
        VySmilElemList list;
        QVERIFY(!list.autoDelete() && list.isEmpty());
        list.append(nullptr);
        list.insert(0, nullptr);
        auto *first = new CountingElem(destroyed);
        auto *second = new CountingElem(destroyed);
        list.insert(7, second);
        list.insert(0, first);
        QCOMPARE(list.count(), qsizetype(2));
        QVERIFY(list.at(0) == first && list.at(1) == second);
        QVERIFY(!list.at(-1) && !list.at(2) && !list.take(2) && !list.remove(-1));
        QVERIFY(list.remove(0));
        QCOMPARE(destroyed, 0);
        delete first;
        list.setAutoDelete(true);
        QCOMPARE(list.take(0), static_cast<VySmilElemBase *>(second));
        QCOMPARE(destroyed, 1);
        list.append(second);
        QVERIFY(list.remove(0));
        QCOMPARE(destroyed, 2);
        list.append(new CountingElem(destroyed));
        list.clear();
        QCOMPARE(destroyed, 3);
    }

    void everyElementIsDestroyedOnce()
    {
        int destroyed = 0;
        int childrenSeen = 0;
        {
            CountingElem root(destroyed, &childrenSeen);
            for (int i = 0; i < 3; ++i) {
                auto *child = new CountingElem(destroyed, &childrenSeen);
                root.getSubElements()->append(child);
                child->getSubElements()->append(new CountingElem(destroyed));
            }
            QVERIFY(root.rmSubElement(1, ""));
            QCOMPARE(destroyed, 2);
            const std::unique_ptr<VySmilElemBase> taken(root.getSubElements()->take(0));
            QCOMPARE(destroyed, 2);
        }
        QCOMPARE(destroyed, 7);
        // A destructor of the client's still sees the children of its element.
        QCOMPARE(childrenSeen, 4);
    }

    void setSubElementsTakesOver()
    {
        int destroyed = 0;
        VySmilElemBody body;
        auto *kept = new CountingElem(destroyed);
        body.getSubElements()->append(kept);
        body.getSubElements()->append(new CountingElem(destroyed));
        {
            VySmilElemList list;
            list.append(new CountingElem(destroyed));
            list.append(kept);
            body.getSubElements()->setAutoDelete(true);
            body.setSubElements(list);
            QCOMPARE(list.count(), qsizetype(2));
        }
        QCOMPARE(destroyed, 1);
        QCOMPARE(body.getSubElements()->at(1), static_cast<VySmilElemBase *>(kept));
        body.getSubElements()->setAutoDelete(false);
        body.setSubElements(*body.getSubElements());
        QVERIFY(body.getSubElements()->autoDelete());
        QCOMPARE(body.getSubElementsCount(), 2u);
        // The children of a child may replace it.
        VySmilElemBase *par = addChild(body, "par");
        VySmilElemBase *img = addChild(*par, "img");
        par->getSubElements()->setAutoDelete(false);
        body.setSubElements(*par->getSubElements());
        QCOMPARE(destroyed, 3);
        QCOMPARE(body.getSubElements()->at(0), img);
        // So may the last child alone.
        VySmilElemBase *last = addChild(body, "ref");
        VySmilElemList lastAlone;
        lastAlone.append(last);
        body.setSubElements(lastAlone);
        QCOMPARE(treeText(body), QString("body(ref)"));
        QCOMPARE(body.getSubElement(0, "ref"), last);
    }

    void copiesAreDeepAndAppended()
    {
        VySmilElemSmil source;
        source.setAttribute("a", "1");
        VySmilElemBase *foo = addChild(*addChild(source, "body"), "Foo");
        foo->setAttribute("b", "2");
        addChild(*foo, "img");
        source.getSubElements()->setAutoDelete(false);

        VySmilElemSmil target;
        target.setAttribute("old", "x");
        addChild(target, "head");
        target.copyFrom(source);
        QCOMPARE(treeText(target), QString("smil[a=1](head body(?Foo[b=2](img)))"));
        QVERIFY(!target.getSubElements()->autoDelete());
        QVERIFY(target.getSubElements()->at(1)->getSubElements()->autoDelete());
        target.getSubElements()->setAutoDelete(true);
        source.getSubElements()->setAutoDelete(true);

        const VySmilElemSmil copy(source);
        source.copyFrom(source);
        QCOMPARE(treeText(copy), treeText(source));
        foo->setAttribute("b", "3");
        QCOMPARE(treeText(copy), QString("smil[a=1](body(?Foo[b=2](img)))"));

        // A child may take a copy of its own ancestor; it has the new attributes before the copy is made.
        foo->copyFrom(source);
        QCOMPARE(treeText(*foo), QString("?[a=1](img body(?[a=1](img)))"));
    }

    // A class of the client's is copied as the factory's of its name, whether it keeps that in its field or
    // not.
    void copiesKeepTheirNames()
    {
        struct Own : VySmilElemPar
        {
            QString getElemType() const override { return "own"; }
        };
        struct Named : Own
        {
            Named() { elemType = "named"; }
        };
        VySmilElemSmil source;
        source.getSubElements()->append(new Own);
        source.getSubElements()->append(new Named);
        auto *capital = new VySmilElemUnknown;
        QVERIFY(!capital->getElemType().isNull());
        capital->setElemType("PAR");
        source.getSubElements()->append(capital);
        const VySmilElemSmil copy(source);
        QCOMPARE(treeText(copy), QString("smil(?own ?named par)"));
    }

    // As limits.md says of classes of the client's, whose own toString() must be called.
    void depthOfClientClassesCostsStack()
    {
        struct Own : VySmilElemPar
        {
        };
        VySmilElemSmil root;
        VySmilElemBase *deepest = &root;
        for (int i = 0; i < 10'000; ++i) {
            deepest->getSubElements()->append(new Own);
            deepest = deepest->getSubElements()->at(0);
        }
        QString text;
        QCOMPARE(root.toString(text, true, nullptr, VySmil::SMIL_VER_DEFAULT), 0);
        QCOMPARE(text.count("</par>"), qsizetype(10'000));
    }

    void depthCostsNoStack()
    {
        constexpr int depth = 200'000;
        VySmilElemSmil root;
        VySmilElemBase *deepest = &root;
        for (int i = 0; i < depth; ++i)
            deepest = addChild(*deepest, "par");
        const VySmilElemSmil copy(root);
        QString text;
        QString copiedText;
        QCOMPARE(root.toString(text, true, nullptr, VySmil::SMIL_VER_DEFAULT), 0);
        QCOMPARE(copy.toString(copiedText, true, nullptr, VySmil::SMIL_VER_DEFAULT), 0);
        QCOMPARE(text.size(), qsizetype(depth) * 13 + 15);
        QVERIFY(text == copiedText);
        QVERIFY(root.rmSubElement(0, "par"));
    }

    // fromDomElem() takes DOMs that no document gives, with names that are no XML names.
    void readsAnyDom()
    {
        QDomDocument dom;
        QDomElement elem = dom.createElement("par");
        elem.setAttribute(" dur ", " 5s ");
        elem.setAttribute(" ", "blank");
        elem.setAttribute("nohref", "");
        elem.appendChild(dom.createElement(" foo "));
        elem.appendChild(dom.createTextNode("text"));
        elem.appendChild(dom.createElement("img"));

        VySmilElemPar par;
        par.setAttribute("kept", "1");
        VySmil::STATUS_CODE status = VySmil::STATUS_OK;
        QCOMPARE(par.fromDomElem(elem, false, &status, VySmil::SMIL_VER_DEFAULT), 0);
        QCOMPARE(status, VySmil::STATUS_INVALID_ATTR);
        QCOMPARE(treeText(par), QString("par[dur=5s kept=1 nohref=nohref](? foo  img)"));
        VySmilElemMediaObjImg img;
        QCOMPARE(img.fromDomElem(elem, false, nullptr, VySmil::SMIL_VER_DEFAULT), 3);
        QCOMPARE(treeText(img), QString("img"));
    }

    // Names may be the same once they are trimmed, or under two namespaces: one is stored, the last in order.
    void readsNamesOnce()
    {
        for (const auto &[names, written] : {std::pair(QStringList{" z", "a", "  a "}, " a=\"4\" z=\"0\""),
                                             std::pair(QStringList{"  c", " b"}, " a=\"4\" b=\"1\" c=\"0\""),
                                             std::pair(QStringList{" a", "b"}, " a=\"4\" b=\"1\"")}) {
            QDomDocument dom;
            QDomElement elem = dom.createElement("par");
            for (int i = 0; i < names.size(); ++i)
                elem.setAttribute(names[i], QString::number(i));
            VySmilElemPar par;
            par.setAttribute("a", "old");
            QCOMPARE(par.fromDomElem(elem, false, nullptr, VySmil::SMIL_VER_DEFAULT), 0);
            par.setAttribute("a", "4");
            QString text;
            QCOMPARE(par.toString(text, false, nullptr, VySmil::SMIL_VER_DEFAULT), 0);
            QCOMPARE(text, QString("<par") + written + ">\n</par>\n");
        }
    }

    void readsANameOfTwoNamespacesOnce()
    {
        QDomDocument dom;
        QDomElement elem = dom.createElement("par");
        elem.setAttributeNS("u1", "dur", "1s");
        elem.setAttributeNS("u2", "dur", "2s");
        VySmilElemPar par;
        QCOMPARE(par.fromDomElem(elem, true, nullptr, VySmil::SMIL_VER_DEFAULT), 0);
        QString text;
        QCOMPARE(par.toString(text, true, nullptr, VySmil::SMIL_VER_DEFAULT), 0);
        QCOMPARE(text, "<par dur=\"" + elem.attributes().item(1).nodeValue() + "\">\n</par>\n");
    }
};

QTEST_GUILESS_MAIN(TestVySmilElemBase)
#include "tst_vysmilelembase.moc"
