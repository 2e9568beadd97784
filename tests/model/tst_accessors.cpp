// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/valuefields.h"

#include <QTest>

namespace {

template <typename Elem, typename Value>
void checkTyped(Elem &elem, const VySmilElemBase &store, const char *name, Value (Elem::*get)() const,
                void (Elem::*set)(const Value &), const QStringList &texts)
{
    QCOMPARE(fieldsOf((elem.*get)()), fieldsOf(Value()));
    for (const QString &text : texts) {
        Value value;
        value.fromString(text);
        (elem.*set)(value);
        QVERIFY(store.getAttributes().contains(name));
        QCOMPARE(store.getAttribute(name), value.toString());
        QCOMPARE((elem.*get)().toString(), value.toString());
        QCOMPARE(fieldsOf((elem.*get)()), fieldsOf(value));
    }
}

template <typename Elem>
void checkText(Elem &elem, const VySmilElemBase &store, const char *name, QString (Elem::*get)() const,
               void (Elem::*set)(const QString &))
{
    QVERIFY((elem.*get)().isEmpty() && !(elem.*get)().isNull());
    for (const char *text : {" a & b ", ""}) {
        (elem.*set)(text);
        QVERIFY(store.getAttributes().contains(name));
        QCOMPARE(store.getAttribute(name), QString(text));
        QCOMPARE((elem.*get)(), QString(text));
    }
}

} // namespace

class TestAccessors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timing()
    {
        const QStringList times{"",
                                "5s",
                                "-01:30",
                                "a.end+2s",
                                "a.endEvent-1s",
                                "indefinite",
                                "01:02:03",
                                "50%",
                                "clip.repeat(2)+1s",
                                "accesskey(x)+1.5h",
                                "media",
                                "m.marker(x)",
                                "1.5",
                                "smpte-2401:02:03:04",
                                "wallclock(2004-05-06T10:00Z)"};
        VySmilElemMediaObjImg img;
        VySmilAttrTiming &group = *img.getTimingAttrsProxy();
        checkTyped(group, img, "begin", &VySmilAttrTiming::getBegin, &VySmilAttrTiming::setBegin, times);
        checkTyped(group, img, "end", &VySmilAttrTiming::getEnd, &VySmilAttrTiming::setEnd, times);
        VySmilElemPar par;
        checkTyped(*par.getTimingAttrsProxy(), par, "dur", &VySmilAttrTiming::getDur,
                   &VySmilAttrTiming::setDur, times);
    }

    void lengths()
    {
        const QStringList lengths{"120", "50%", "33.3%", "", "-7%"};
        using Region = VySmilElemRegion;
        using Root = VySmilElemRootLayout;
        Region region;
        checkTyped(region, region, "width", &Region::getWidth, &Region::setWidth, lengths);
        checkTyped(region, region, "height", &Region::getHeight, &Region::setHeight, lengths);
        checkTyped(region, region, "top", &Region::getTop, &Region::setTop, lengths);
        checkTyped(region, region, "left", &Region::getLeft, &Region::setLeft, lengths);
        Root root;
        checkTyped(root, root, "width", &Root::getWidth, &Root::setWidth, lengths);
        checkTyped(root, root, "height", &Root::getHeight, &Root::setHeight, lengths);
        // Text that does not read gives what the failed read left.
        region.setAttribute("width", "12abc%");
        QCOMPARE(fieldsOf(region.getWidth()), QString("1 12"));
        region.setAttribute("width", "abc");
        QCOMPARE(fieldsOf(region.getWidth()), QString("0 0"));
    }

    void texts()
    {
        VySmilElemRegion region;
        checkText(region, region, "fit", &VySmilElemRegion::getFit, &VySmilElemRegion::setFit);
        checkText(*region.getCommonAttrsProxy(), region, "id", &VySmilAttrCommon::getId,
                  &VySmilAttrCommon::setId);
        VySmilElemMediaObjAudio audio;
        checkText(*audio.getMediaAttrsProxy(), audio, "src", &VySmilAttrMedia::getSrc,
                  &VySmilAttrMedia::setSrc);
        using Media = VySmilElemMediaObj;
        checkText<Media>(audio, audio, "region", &Media::getRegion, &Media::setRegion);
        checkText<Media>(audio, audio, "alt", &Media::getAlt, &Media::setAlt);
        VySmilElemMeta meta;
        checkText(meta, meta, "name", &VySmilElemMeta::getName, &VySmilElemMeta::setName);
        checkText(meta, meta, "content", &VySmilElemMeta::getConent, &VySmilElemMeta::setContent);
    }
};

QTEST_GUILESS_MAIN(TestAccessors)
#include "tst_accessors.moc"
