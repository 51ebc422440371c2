// SPDX-License-Identifier: MIT
// The driver of the sections.
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

#include "tests/support/DxfRecorder.h"

#include <QBuffer>

#include <algorithm>

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

constexpr char kHeader[] = "0 SECTION\n2 HEADER\n0 ENDSEC\n";
constexpr char kTables[] = "0 SECTION\n2 TABLES\n0 LAYER\n2 A\n0 ENDSEC\n";
constexpr char kBlocks[] = "0 SECTION\n2 BLOCKS\n0 BLOCK\n2 B\n0 ENDBLK\n0 ENDSEC\n";
constexpr char kEntities[] = "0 SECTION\n2 ENTITIES\n0 POINT\n10 1\n0 ENDSEC\n";
constexpr char kObjects[] = "0 SECTION\n2 OBJECTS\n0 MLINESTYLE\n2 M\n62 1\n0 ENDSEC\n";
constexpr char kEof[] = "0 EOF\n";

// What a host that refuses some stages gets to hear, the questions included.
std::string ToldOfBytes(const QByteArray& bytes, std::vector<int> refused = {})
{
    CDxfRecorder recorder;
    recorder.recordsGates = true;
    recorder.refused = std::move(refused);
    return ReadBytes(bytes, recorder) ? recorder.text : recorder.text + "false\n";
}

std::string Told(const std::string& tags, std::vector<int> refused = {})
{
    return ToldOfBytes(Tags(tags.c_str()), std::move(refused));
}

const std::string kAll = std::string(kHeader) + kTables + kBlocks + kEntities + kObjects + kEof;

// The positions reported while `bytes` are read.
std::vector<qint64> Positions(const QByteArray& bytes, std::vector<int> refused = {})
{
    CProgressRecorder progress;
    CDxfRecorder recorder;
    recorder.progress = &progress;
    recorder.refused = std::move(refused);
    ReadBytes(bytes, recorder);
    return progress.positions;
}

// Where each group of the bytes ends, for the groups with these numbers.
std::vector<qint64> Ends(const QByteArray& bytes, const std::vector<int>& groups)
{
    std::vector<qint64> ends;
    qint64 at = 0;
    for (int group = 0; at < bytes.size(); ++group) {
        at = bytes.indexOf('\n', static_cast<int>(at)) + 1;
        at = bytes.indexOf('\n', static_cast<int>(at)) + 1;
        if (std::find(groups.begin(), groups.end(), group) != groups.end()) {
            ends.push_back(at);
        }
    }
    ends.push_back(bytes.size()); // reported behind the end of the sections
    return ends;
}

} // namespace

TEST(DXFReaderImpl, ReadsEachSectionBehindItsGate)
{
    EXPECT_EQ(Told(kAll),
              "Header version=1009\n"
              "Section 1\nLayer name=\"A\"\n"
              "Section 2\nBlock name=\"B\"\n"
              "Section 3\nPoint point=(1 0 0)\n"
              "Section 4\nMLineStyle name=\"M\"\n");
}

TEST(DXFReaderImpl, RefusedTablesAreSkipped)
{
    EXPECT_EQ(Told(kAll, {1}),
              "Header version=1009\nSection 1\nSection 2\nBlock name=\"B\"\n"
              "Section 3\nPoint point=(1 0 0)\nSection 4\nMLineStyle name=\"M\"\n");
}

TEST(DXFReaderImpl, RefusedBlocksAreSkipped)
{
    EXPECT_EQ(Told(kAll, {2}),
              "Header version=1009\nSection 1\nLayer name=\"A\"\nSection 2\n"
              "Section 3\nPoint point=(1 0 0)\nSection 4\nMLineStyle name=\"M\"\n");
}

TEST(DXFReaderImpl, RefusedEntitiesAreSkipped)
{
    EXPECT_EQ(Told(kAll, {3}),
              "Header version=1009\nSection 1\nLayer name=\"A\"\nSection 2\nBlock name=\"B\"\n"
              "Section 3\nSection 4\nMLineStyle name=\"M\"\n");
}

TEST(DXFReaderImpl, RefusedObjectsAreSkipped)
{
    EXPECT_EQ(Told(kAll, {4}),
              "Header version=1009\nSection 1\nLayer name=\"A\"\nSection 2\nBlock name=\"B\"\n"
              "Section 3\nPoint point=(1 0 0)\nSection 4\n");
}

TEST(DXFReaderImpl, HeaderCannotBeRefused)
{
    EXPECT_EQ(Told(kAll, {0, 1, 2, 3, 4, 5}),
              "Header version=1009\nSection 1\nSection 2\nSection 3\nSection 4\n");
}

TEST(DXFReaderImpl, NamesOfSectionsAndMarksAreTakenInAnyCase)
{
    EXPECT_EQ(Told("0 section\n2 entities\n0 POINT\n0 EndSec\n0 Section\n2 Tables\n0 endsec\n"
                   "0 eof\n0 SECTION\n2 BLOCKS\n"),
              "Section 3\nPoint\nSection 1\n");
}

TEST(DXFReaderImpl, UnknownSectionIsSkippedInSilence)
{
    EXPECT_EQ(Told("0 SECTION\n2 CLASSES\n0 POINT\n0 EOF\n0 SECTION\n2 ENTITIES\n0 LINE\n0 ENDSEC\n"
                   + std::string(kEntities)),
              "Section 3\nPoint point=(1 0 0)\n");
}

TEST(DXFReaderImpl, SectionsOfOneKindMayComeAgain)
{
    EXPECT_EQ(Told(std::string(kEntities) + kTables + kEntities),
              "Section 3\nPoint point=(1 0 0)\nSection 1\nLayer name=\"A\"\n"
              "Section 3\nPoint point=(1 0 0)\n");
}

TEST(DXFReaderImpl, TagsBetweenSectionsArePassedOver)
{
    EXPECT_EQ(Told(std::string("999 comment\n0 POINT\n0 LINE\n2 ENTITIES\n") + kEntities
                   + "0 CIRCLE\n8 A\n" + kTables),
              "Section 3\nPoint point=(1 0 0)\nSection 1\nLayer name=\"A\"\n");
}

TEST(DXFReaderImpl, EmptyCodeBetweenSectionsIsPassedOver)
{
    EXPECT_EQ(ToldOfBytes("\r\n\r\n" + Tags(kEntities) + " \r\nx\r\n" + Tags(kTables)),
              "Section 3\nPoint point=(1 0 0)\nSection 1\nLayer name=\"A\"\n");
}

TEST(DXFReaderImpl, SectionWithoutItsNameIsDroppedWithTheNextTag)
{
    // The tag behind the mark is dropped, be it the mark of a section itself.
    EXPECT_EQ(Told(std::string("0 SECTION\n") + kEntities + kTables),
              "Section 1\nLayer name=\"A\"\n");
    EXPECT_EQ(Told(std::string("0 SECTION\n5 ENTITIES\n0 POINT\n") + kTables),
              "Section 1\nLayer name=\"A\"\n");
}

TEST(DXFReaderImpl, NameOfASectionNeedsItsCodeExactly)
{
    EXPECT_EQ(Told("0 SECTION\n02 ENTITIES\n0 POINT\n0 ENDSEC\n"), "");
}

TEST(DXFReaderImpl, MarksCountOnlyWithTheirCode)
{
    EXPECT_EQ(Told(std::string("1 EOF\n1 SECTION\n2 TABLES\n") + kEntities),
              "Section 3\nPoint point=(1 0 0)\n");
    EXPECT_EQ(Told("0 SECTION\n2 X\n1 ENDSEC\n0 SECTION\n2 ENTITIES\n0 ENDSEC\n"), "");
}

TEST(DXFReaderImpl, NothingBehindTheEndMarkIsRead)
{
    EXPECT_EQ(Told(std::string(kEof) + kEntities), "");
}

TEST(DXFReaderImpl, FileWithoutAnEndMarkIsTrue)
{
    EXPECT_EQ(Told(kEntities), "Section 3\nPoint point=(1 0 0)\n");
}

TEST(DXFReaderImpl, FileOfAnEndMarkAloneIsTrueAndCallsNothing)
{
    EXPECT_EQ(Told(kEof), "");
}

TEST(DXFReaderImpl, ObjectsEndTheReading)
{
    EXPECT_EQ(Told(std::string(kObjects) + kEntities), "Section 4\nMLineStyle name=\"M\"\n");
    EXPECT_EQ(Told(std::string(kObjects) + kEof), "Section 4\nMLineStyle name=\"M\"\n");
}

TEST(DXFReaderImpl, RefusedObjectsDoNotEndTheReading)
{
    EXPECT_EQ(Told(std::string(kObjects) + kEntities, {4}),
              "Section 4\nSection 3\nPoint point=(1 0 0)\n");
}

TEST(DXFReaderImpl, EndOfFileInsideEntitiesIsTrue)
{
    EXPECT_EQ(Told("0 SECTION\n2 ENTITIES\n0 POINT\n10 1\n"), "Section 3\nPoint point=(1 0 0)\n");
    EXPECT_EQ(Told("0 SECTION\n2 ENTITIES\n"), "Section 3\n");
}

TEST(DXFReaderImpl, EndOfFileInsideObjectsIsTrue)
{
    EXPECT_EQ(Told("0 SECTION\n2 OBJECTS\n0 MLINESTYLE\n62 1\n"), "Section 4\nMLineStyle\n");
    EXPECT_EQ(Told("0 SECTION\n2 OBJECTS\n"), "Section 4\n");
}

TEST(DXFReaderImpl, EndOfFileInsideHeaderOrTablesIsTrue)
{
    EXPECT_EQ(Told("0 SECTION\n2 HEADER\n9 $EXTMIN\n10 1\n"), "");
    EXPECT_EQ(Told("0 SECTION\n2 TABLES\n0 LAYER\n2 A\n"), "Section 1\nLayer name=\"A\"\n");
}

TEST(DXFReaderImpl, EndOfFileInsideASkippedSectionIsTrue)
{
    EXPECT_EQ(Told("0 SECTION\n2 CLASSES\n0 X\n"), "");
    EXPECT_EQ(Told("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 B\n", {2}), "Section 2\n");
    EXPECT_EQ(Told("0 SECTION\n"), "");
}

TEST(DXFReaderImpl, EndOfFileInsideABlockIsFalse)
{
    EXPECT_EQ(Told("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 B\n0 POINT\n10 1\n"), "Section 2\nfalse\n");
}

TEST(DXFReaderImpl, EmptyCodeInsideABlockIsFalseAndReadingStops)
{
    EXPECT_EQ(ToldOfBytes(Tags("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 B\n0 SEQEND\n") + "\r\n\r\n"
                          + Tags("0 ENDBLK\n0 ENDSEC\n") + Tags(kEntities)),
              "Section 2\nfalse\n");
}

TEST(DXFReaderImpl, EmptyCodeEndsTheLoopOfEntities)
{
    // What follows is passed over up to the next section.
    EXPECT_EQ(ToldOfBytes(Tags("0 SECTION\n2 ENTITIES\n0 SEQEND\n0 X\n") + "\r\n\r\n"
                          + Tags("0 POINT\n") + Tags(kTables)),
              "Section 3\nSection 1\nLayer name=\"A\"\n");
}

TEST(DXFReaderImpl, EmptyCodeInsideAnObjectIsOneMoreTag)
{
    EXPECT_EQ(
        ToldOfBytes(Tags("0 SECTION\n2 ENTITIES\n0 POINT\n") + "\r\n\r\n" + Tags("10 7\n0 LINE\n")),
        "Section 3\nPoint point=(7 0 0)\nLine\n");
}

TEST(DXFReaderImpl, EmptyCodeEndsTheObjectsAndWithThemTheReading)
{
    EXPECT_EQ(ToldOfBytes(Tags("0 SECTION\n2 OBJECTS\n0 X\n") + "\r\n\r\n" + Tags("0 MLINESTYLE\n")
                          + Tags(kTables)),
              "Section 4\n");
}

TEST(DXFReaderImpl, ResultsOfCallbacksAreNotLookedAt)
{
    class CRefuser final : public IDXFReader
    {
    public:
        bool OnHeader(const CHeaderDXF&) override { return Count(); }
        bool OnLayer(const CLayerDXF&) override { return Count(); }
        bool OnBlock(const CBlockDXF&) override { return Count(); }
        bool OnPoint(const CPointDXF&) override { return Count(); }
        bool OnMLineStyle(const CMLineStyleDXF&) override { return Count(); }
        bool Count()
        {
            ++calls;
            return false;
        }
        int calls = 0;
    };
    CRefuser host;
    EXPECT_TRUE(ReadBytes(Tags(kAll.c_str()), host));
    EXPECT_EQ(host.calls, 5);
}

TEST(DXFReaderImpl, HostThatOverridesNothingReadsEverything)
{
    class CNothing final : public IDXFReader
    {
    };
    CNothing host;
    EXPECT_TRUE(ReadBytes(Tags(kAll.c_str()), host));
}

TEST(DXFReaderImpl, BinaryDrawingGivesNothing)
{
    QByteArray bytes("AutoCAD Binary DXF\r\n\x1A\0", 22);
    bytes += QByteArray("\0SECTION\0\2ENTITIES\0\0POINT\0\0EOF\0", 32);
    EXPECT_EQ(ToldOfBytes(bytes), "");
}

TEST(DXFReaderImpl, ReadsFromAnyDevice)
{
    QByteArray bytes = Tags(kAll.c_str());
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    CDxfRecorder recorder;
    CDXFReaderImpl reader(device, &recorder);
    EXPECT_TRUE(reader.ReadSections());
    EXPECT_EQ(recorder.counts["OnPoint"], 1);
}

class LineEnds : public testing::TestWithParam<const char*>
{
};

TEST_P(LineEnds, DoNotMatter)
{
    EXPECT_EQ(ToldOfBytes(Tags(kAll.c_str(), GetParam())), Told(kAll));
}

INSTANTIATE_TEST_SUITE_P(DXFReaderImpl, LineEnds,
                         testing::Values("\r\n", "\n", "\r", " \r\n", "\t\r"));

TEST(DXFReaderImpl, FileWithCarriageReturnsAloneNeedsNoLastOne)
{
    QByteArray bytes = Tags(kAll.c_str(), "\r");
    bytes.chop(1);
    EXPECT_EQ(ToldOfBytes(bytes), Told(kAll));
}

TEST(DXFReaderImpl, LineOf1500CharactersPutsTheGroupsOutOfStep)
{
    // The rest of the line is taken for a code, and so on up to the next odd line.
    const QByteArray longLine = "  1\r\n" + QByteArray(1500, 'x') + "\r\n";
    EXPECT_EQ(ToldOfBytes(Tags("0 SECTION\n2 ENTITIES\n0 POINT\n") + longLine + Tags("0 LINE\n")
                          + "odd\r\n" + Tags("0 CIRCLE\n")),
              "Section 3\nPoint\nArc\n");
}

TEST(DXFReaderImpl, ValuesLoseTheirBlanks)
{
    EXPECT_EQ(Told("0 SECTION\n2 ENTITIES\n0 POINT\n8   A B  \n"),
              "Section 3\nPoint layer=\"A B\"\n");
}

TEST(DXFReaderImpl, CodeOfTwoBlanksAndAZeroIsZeroAndTwoZerosAreNot)
{
    EXPECT_EQ(
        ToldOfBytes(QByteArray("  0\nSECTION\n  2\nENTITIES\n  0\nPOINT\n 00\nLINE\n 10\n4\n")),
        "Section 3\nPoint point=(4 0 0)\n");
}

TEST(DXFReaderImpl, ValuesOfOneCodeComeJoined)
{
    EXPECT_EQ(Told("0 SECTION\n2 ENTITIES\n0 TEXT\n1 one\n1 two\n"),
              "Section 3\nText text=\"one;two\"\n");
}

TEST(DXFReaderImpl, PositionIsReportedForEveryTagOfTheSectionLoop)
{
    const QByteArray bytes = Tags("999 a\n999 b\n0 EOF\n999 c\n");
    EXPECT_EQ(Positions(bytes), Ends(bytes, {0, 1, 2}));
}

TEST(DXFReaderImpl, PositionIsNotReportedForTheNameOfASection)
{
    const QByteArray bytes = Tags("0 SECTION\n5 dropped\n0 EOF\n");
    EXPECT_EQ(Positions(bytes), Ends(bytes, {0, 2}));
}

TEST(DXFReaderImpl, PositionIsReportedThroughRefusedEntitiesAlone)
{
    const QByteArray entities = Tags("0 SECTION\n2 ENTITIES\n0 POINT\n10 1\n0 ENDSEC\n0 EOF\n");
    EXPECT_EQ(Positions(entities, {3}), Ends(entities, {0, 2, 3, 4, 5}));
    const char* const others[] = {"TABLES", "BLOCKS", "OBJECTS", "CLASSES"};
    for (const std::string name : others) {
        const QByteArray bytes =
            Tags(("0 SECTION\n2 " + name + "\n0 POINT\n10 1\n0 ENDSEC\n0 EOF\n").c_str());
        EXPECT_EQ(Positions(bytes, {1, 2, 4}), Ends(bytes, {0, 5})) << name;
    }
}

TEST(DXFReaderImpl, PositionIsReportedOnceForEachTagOfTheLoops)
{
    // Inside of an object none is, and the one behind it is where the object stopped.
    const QByteArray entities =
        Tags("0 SECTION\n2 ENTITIES\n0 POINT\n10 1\n0 X\n5 1\n0 ENDSEC\n0 EOF\n");
    EXPECT_EQ(Positions(entities), Ends(entities, {0, 2, 4, 5, 6, 7}));
    const QByteArray header = Tags("0 SECTION\n2 HEADER\n9 $EXTMIN\n10 1\n9 $X\n70 1\n9 "
                                   "$ACADVER\n1 AC1009\n0 ENDSEC\n0 EOF\n");
    EXPECT_EQ(Positions(header), Ends(header, {0, 2, 4, 5, 6, 8, 9}));
    const QByteArray tables =
        Tags("0 SECTION\n2 TABLES\n0 TABLE\n2 LAYER\n0 LAYER\n2 A\n0 ENDSEC\n0 EOF\n");
    EXPECT_EQ(Positions(tables), Ends(tables, {0, 2, 3, 4, 6, 7}));
    const QByteArray objects =
        Tags("0 SECTION\n2 OBJECTS\n0 X\n0 MLINESTYLE\n62 1\n0 ENDSEC\n0 EOF\n");
    std::vector<qint64> expected = Ends(objects, {0, 2, 3, 5});
    expected.insert(expected.end() - 1, expected[3]); // once more behind the section
    EXPECT_EQ(Positions(objects), expected);
}

TEST(DXFReaderImpl, PositionIsNotReportedForTheEmptyCodeThatEndsALoop)
{
    const QByteArray bytes = Tags("0 SECTION\n2 ENTITIES\n0 X\n");
    EXPECT_EQ(Positions(bytes), Ends(bytes, {0, 2}));
}
