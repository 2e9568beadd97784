// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// What clients embed in their own classes, on the stack and in lists. A change of a size here breaks programs
// that were built before it, and asks for a new SOVERSION (see CHANGELOG.md).

#include <VySmil/VySmil>

#include <QTest>

#include <cstddef>

namespace {

template <typename Type>
void row(const char *name, std::size_t size)
{
    QTest::newRow(name) << sizeof(Type) << size;
}

} // namespace

class TestSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_data()
    {
        QTest::addColumn<std::size_t>("size");
        QTest::addColumn<std::size_t>("expected");
        row<VySmil::VyCount>("VyCount", 8);
        row<VySmil::VyIndex>("VyIndex", 8);
        row<VySmil::VyMediaLength>("VyMediaLength", 8);
        row<VySmil::VyBandWidth>("VyBandWidth", 8);
        row<VySmil::VyLength>("VyLength", 8);
        row<VySmil::VySize>("VySize", 8);
        row<VySmil::VyCoords>("VyCoords", 20);
        row<VySmil::VyColor>("VyColor", 48);
        row<VySmil::VyTimeCount>("VyTimeCount", 8);
        row<VySmil::VyTimeFullClock>("VyTimeFullClock", 12);
        row<VySmil::VyTimePartialClock>("VyTimePartialClock", 8);
        row<VySmil::VyTimeClock>("VyTimeClock", 32);
        row<VySmil::VyTimeOffset>("VyTimeOffset", 36);
        row<VySmil::VyTimeSmpte>("VyTimeSmpte", 40);
        row<VySmil::VyTimeSycBase>("VyTimeSycBase", 64);
        row<VySmil::VyTimeEvent>("VyTimeEvent", 88);
        row<VySmil::VyTimeRepeat>("VyTimeRepeat", 64);
        row<VySmil::VyTimeAccessKey>("VyTimeAccessKey", 64);
        row<VySmil::VyTimeMediaMarker>("VyTimeMediaMarker", 48);
        row<VySmil::VyWallClockSyncTime>("VyWallClockSyncTime", 32);
        row<VySmil::VyTime>("VyTime", 504);
        row<VySmilTextFault>("VySmilTextFault", 48);
        row<VySmilPart>("VySmilPart", 104);
        row<VySmilMedium>("VySmilMedium", 200);
        row<VySmilSlide>("VySmilSlide", 48);
        row<VySmilSlideShow>("VySmilSlideShow", 80);
        row<VySmilSlideShowOptions>("VySmilSlideShowOptions", 12);
        row<VySmilFinding>("VySmilFinding", 88);
        row<VySmilElemList>("VySmilElemList", 40);
        row<VySmilBase>("VySmilBase", 8);
        row<VySmilAttrBase>("VySmilAttrBase", 16);
        row<VySmilAttrCommon>("VySmilAttrCommon", 16);
        row<VySmilAttrMedia>("VySmilAttrMedia", 16);
        row<VySmilAttrTiming>("VySmilAttrTiming", 16);
        row<VySmilElemBase>("VySmilElemBase", 96);
        row<VySmilElemSmil>("VySmilElemSmil", 96);
        row<VySmilElemHead>("VySmilElemHead", 112);
        row<VySmilElemBody>("VySmilElemBody", 112);
        row<VySmilElemLayout>("VySmilElemLayout", 96);
        row<VySmilElemRootLayout>("VySmilElemRootLayout", 96);
        row<VySmilElemRegion>("VySmilElemRegion", 112);
        row<VySmilElemMeta>("VySmilElemMeta", 96);
        row<VySmilElemPar>("VySmilElemPar", 112);
        row<VySmilElemMediaObj>("VySmilElemMediaObj", 128);
        row<VySmilElemMediaObjImg>("VySmilElemMediaObjImg", 128);
        row<VySmilElemMediaObjText>("VySmilElemMediaObjText", 128);
        row<VySmilElemMediaObjAudio>("VySmilElemMediaObjAudio", 128);
        row<VySmilElemMediaObjVideo>("VySmilElemMediaObjVideo", 128);
        row<VySmilElemMediaObjRef>("VySmilElemMediaObjRef", 128);
        row<VySmilElemUnknown>("VySmilElemUnknown", 96);
    }
    void sizes()
    {
        QFETCH(std::size_t, size);
        QFETCH(std::size_t, expected);
        // The sizes are those of 64 bits.
        if (QT_POINTER_SIZE == 8)
            QCOMPARE(size, expected);
    }
};

QTEST_GUILESS_MAIN(TestSizes)
#include "tst_sizes.moc"
