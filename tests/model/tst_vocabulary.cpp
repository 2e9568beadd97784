// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/VySmil>

#include <QTest>

#include <memory>
#include <typeinfo>

namespace {

const auto noVersion = static_cast<VySmil::SMIL_VERSION>(7);

QStringList acceptedBy(const VySmilElemBase &elem, VySmil::SMIL_VERSION version)
{
    QStringList accepted;
    for (const char *name : {"alt", "begin", "content", "dur", "end", "fit", "height", "id", "left", "name",
                             "region", "src", "top", "width", "Width", " id", "foo", ""}) {
        if (elem.isValidAttr(QString::fromLatin1(name), version))
            accepted << QString::fromLatin1(name);
    }
    return accepted;
}

} // namespace

class TestVocabulary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void elements_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("attributesOfOtherVersions");
        const auto row = [](const char *name, const std::type_info &type, const char *attributes,
                            const char *others = "") {
            QTest::newRow(name) << QString(name) << QString(type.name()) << QString(attributes)
                                << QString(others);
        };
        const char *const media = "alt begin dur end region src";
        row("smil", typeid(VySmilElemSmil), "");
        row("head", typeid(VySmilElemHead), "", "id");
        row("body", typeid(VySmilElemBody), "", "id");
        row("layout", typeid(VySmilElemLayout), "");
        row("root-layout", typeid(VySmilElemRootLayout), "height width");
        row("region", typeid(VySmilElemRegion), "fit height id left top width");
        row("meta", typeid(VySmilElemMeta), "content name");
        row("par", typeid(VySmilElemPar), "dur");
        row("img", typeid(VySmilElemMediaObjImg), media);
        row("text", typeid(VySmilElemMediaObjText), media);
        row("audio", typeid(VySmilElemMediaObjAudio), "alt begin dur end src");
        row("video", typeid(VySmilElemMediaObjVideo), media);
        row("ref", typeid(VySmilElemMediaObjRef), media);
    }
    void elements()
    {
        QFETCH(QString, name);
        QFETCH(QString, className);
        QFETCH(QString, attributes);
        QFETCH(QString, attributesOfOtherVersions);
        for (const QString &spelling : {name, name.toUpper(), " " + name + "\n"}) {
            const std::unique_ptr<VySmilElemBase> elem(VySmilElemBase::newElem(spelling));
            const VySmilElemBase &made = *elem;
            QCOMPARE(QString(typeid(made).name()), className);
            QCOMPARE(elem->getElemType(), name);
            QCOMPARE(acceptedBy(*elem, VySmil::SMIL_VER_DEFAULT).join(' '), attributes);
            QCOMPARE(acceptedBy(*elem, noVersion).join(' '), attributesOfOtherVersions);
            QCOMPARE(elem->isValidElement(spelling, VySmil::SMIL_VER_DEFAULT), spelling == name);
            QVERIFY(!elem->isValidElement(name, noVersion));
        }
    }

    void unknownNamesAreKept()
    {
        for (const QString &name : {QString("seq"), QString(" Foo "), QString("")}) {
            const std::unique_ptr<VySmilElemBase> elem(VySmilElemBase::newElem(name));
            QVERIFY(dynamic_cast<VySmilElemUnknown *>(elem.get()));
            QCOMPARE(elem->getElemType(), name);
            QVERIFY(!elem->isValidElement(name, VySmil::SMIL_VER_DEFAULT));
            QVERIFY(acceptedBy(*elem, VySmil::SMIL_VER_DEFAULT) == acceptedBy(*elem, noVersion));
            QCOMPARE(acceptedBy(*elem, noVersion).size(), qsizetype(18));
        }
    }

    // The groups have lists of their own, which the elements do not follow.
    void groups()
    {
        VySmilElemMediaObjImg img;
        VySmilElemRegion region;
        for (const auto version : {VySmil::SMIL_VER_DEFAULT, noVersion}) {
            QVERIFY(region.getCommonAttrsProxy()->isValidAttr("id", version));
            QVERIFY(!region.getCommonAttrsProxy()->isValidAttr("src", version));
            QVERIFY(img.getMediaAttrsProxy()->isValidAttr("src", version));
            QVERIFY(!img.getMediaAttrsProxy()->isValidAttr("begin", version));
            for (const char *name : {"begin", "end", "dur"})
                QVERIFY(img.getTimingAttrsProxy()->isValidAttr(name, version));
            QVERIFY(!img.getTimingAttrsProxy()->isValidAttr("id", version));
        }
        img.getMediaAttrsProxy()->setRefElem(&region);
        img.getMediaAttrsProxy()->setAttribute("src", "a");
        QCOMPARE(region.getAttribute("src"), QString("a"));
        QCOMPARE(VySmilAttrBase().getRefElem(), nullptr);
    }
};

QTEST_GUILESS_MAIN(TestVocabulary)
#include "tst_vocabulary.moc"
