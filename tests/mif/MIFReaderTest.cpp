// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

#include "tests/support/MifRecorder.h"
#include "VelorExchange/mif/Read.h"

#include <QTemporaryDir>

#include <stdexcept>

using namespace VelorExchange;
using namespace VelorExchange::test;

namespace {

// A pair whose only column numbers the rows.
std::string RecordedWithRows(const QByteArray& data, const QByteArray& mid)
{
    return Recorded(CMifPair("Columns 1\nn Integer\nData\n" + data, mid));
}

} // namespace

TEST(MIFReader, MissingFileIsFalseWithoutACall)
{
    EXPECT_EQ(Recorded(CMifPair(), true), "false\n");
}

TEST(MIFReader, FolderInsteadOfTheFileIsFalse)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("a.mif")));
    CMifRecorder recorder;
    EXPECT_FALSE(mif::Read(folder.filePath(QStringLiteral("a")), &recorder));
}

TEST(MIFReader, MissingRowsFileLeavesObjectsWithoutAttributes)
{
    EXPECT_EQ(Recorded(CMifPair("Columns 1\na Integer\nData\nPoint 1 2\n")), "AddPoint (1 2)\n");
}

TEST(MIFReader, EmptyRowsFileLeavesObjectsWithoutAttributes)
{
    EXPECT_EQ(RecordedWithRows("Point 1 2\nCollection\nPoint 3 4\n", ""),
              "AddPoint (1 2)\nAddPoint (3 4)\n");
}

TEST(MIFReader, UpperCaseExtensionsAreTakenWhereLowerCaseIsMissing)
{
    CMifPair pair;
    pair.Write("MIF", "Columns 1\na Integer\nData\nPoint 1 2\n");
    pair.Write("MID", "7\n");
    EXPECT_EQ(Recorded(pair), "AddPoint (1 2) [a=int:7]\n");
    pair.Write("mif", "Data\nPoint 3 4\n");
    EXPECT_EQ(Recorded(pair), "AddPoint (3 4)\n");
}

TEST(MIFReader, TellsProgressAndFinish)
{
    EXPECT_EQ(Recorded(CMifPair("Data\nPoint 1 2\nPoint 3 4\n"), true),
              "SetProgressRange 25\nSetProgress 5\nSetProgress 15\nAddPoint (1 2)\n"
              "SetProgress 25\nAddPoint (3 4)\nSetProgress 25\nFinish\n");
}

TEST(MIFReader, HeaderWithoutObjectsIsTrue)
{
    EXPECT_EQ(Recorded(CMifPair("Version 300\nColumns 0\nData\n"), true),
              "SetProgressRange 27\nSetProgress 27\nSetProgress 27\nFinish\n");
}

TEST(MIFReader, HeaderWithoutDataIsFalseWithoutFinish)
{
    EXPECT_EQ(Recorded(CMifPair("Version 300\nPoint 1 2\n"), true), "SetProgressRange 22\nfalse\n");
    EXPECT_EQ(Recorded(CMifPair(""), true), "SetProgressRange 0\nfalse\n");
}

TEST(MIFReader, BlankLinesAndLineEndsOfAllKindsArePassedOver)
{
    EXPECT_EQ(RecordedObjects("\r\n  \t\r\nPoint 1 2\r\n\n   Point 3 4"),
              "AddPoint (1 2)\nAddPoint (3 4)\n");
}

TEST(MIFReader, KeywordCountsAnywhereAndInAnyCase)
{
    EXPECT_EQ(RecordedObjects("xxpOiNtxx 1 2\n"), "AddPoint (1 2)\n");
}

TEST(MIFReader, FirstKeywordOfTheOrderWins)
{
    EXPECT_EQ(RecordedObjects("Point 5 6 Region\n"), "");
    EXPECT_EQ(RecordedObjects("Multipoint 1\n1 2\n"), "AddPoint (1 2)\n");
    EXPECT_EQ(RecordedObjects("PLine 1\n1 2\n"), "AddPolyline (1 2)\n");
    EXPECT_EQ(RecordedObjects("RoundRect 1 2 3 4 0\n"), "AddRoundRect (1 2)(3 4) radius=0\n");
}

TEST(MIFReader, KeywordsAreTriedInTheirOrder)
{
    struct CCase
    {
        const char* data; // its first line holds two keywords, the later one of the order first
        const char* calls;
    };
    for (const CCase& known :
         {CCase{"Text Region\nx\n1 2 3 4\n", ""},
          CCase{"Multipoint 1 Text\n1 2\n3 4 5 6\n", "AddText <1 2> (3 4)(5 6)\n"},
          CCase{"Point 7 8 Multipoint\n", ""}, CCase{"PLine 1 2 Point\n", "AddPoint (1 2)\n"},
          CCase{"Line 1 2 3 PLine\n1\n5 6\n", "AddPolyline (5 6)\n"},
          CCase{"Arc 1 2 3 4 0 90 Line\n", "AddPolyline (1 2)(3 4)\n"},
          CCase{"RoundRect 1 2 3 4 Arc\n0 0\n", "AddArc (1 2)(3 4) angles=0,0\n"},
          CCase{"Rect 1 2 3 4 RoundRect\n0\n", "AddRoundRect (1 2)(3 4) radius=0\n"},
          CCase{"Ellipse 1 2 3 4 Rect\n", "AddRect (1 2)(3 4)\n"},
          CCase{"Collection 1 2 3 Ellipse\n", "AddEllipse (1 2)(3 0)\n"}})
    {
        EXPECT_EQ(RecordedObjects(known.data), known.calls) << known.data;
    }
}

TEST(MIFReader, LineWithoutKeywordTakesNoRow)
{
    EXPECT_EQ(RecordedWithRows("None\nPoint 1 2\n", "1\n2\n"), "AddPoint (1 2) [n=int:1]\n");
}

TEST(MIFReader, DataLineIsOfferedToTheDispatch)
{
    EXPECT_EQ(Recorded(CMifPair("Point 1 2 Data\nPoint 3 4\n")),
              "AddPoint (1 2)\nAddPoint (3 4)\n");
}

TEST(MIFReader, ShortObjectIsDroppedAndTakesNoRow)
{
    EXPECT_EQ(RecordedWithRows("Line 1 2 3\nPoint 1 2\n", "1\n2\n"), "AddPoint (1 2) [n=int:1]\n");
    EXPECT_EQ(RecordedWithRows("PLine 2\n1 2\n3\nPoint 5 6\n", "1\n2\n"),
              "AddPoint (5 6) [n=int:1]\n");
}

TEST(MIFReader, EndInsideAnObjectDropsItAndFinishes)
{
    EXPECT_EQ(Recorded(CMifPair("Data\nPoint 1 2\nPLine 3\n1 2\n"), true),
              "SetProgressRange 27\nSetProgress 5\nSetProgress 15\nAddPoint (1 2)\n"
              "SetProgress 23\nSetProgress 27\nFinish\n");
}

TEST(MIFReader, BadNumbersReadAsZero)
{
    EXPECT_EQ(RecordedObjects("Point x 1,5\nPoint 1e2 -.5\n"),
              "AddPoint (0 0)\nAddPoint (100 -0.5)\n");
}

TEST(MIFReader, CollectionSharesARowAmongThreeParts)
{
    EXPECT_EQ(
        RecordedWithRows("Collection\nPoint 1 0\nPoint 2 0\nPoint 3 0\nPoint 4 0\n", "1\n2\n3\n"),
        "AddPoint (1 0) [n=int:1]\nAddPoint (2 0) [n=int:1]\nAddPoint (3 0) [n=int:1]\n"
        "AddPoint (4 0) [n=int:2]\n");
}

TEST(MIFReader, CollectionTellsItsNumberOfParts)
{
    EXPECT_EQ(RecordedWithRows("cOLLECTION 1\nPoint 1 0\nPoint 2 0\n", "1\n2\n"),
              "AddPoint (1 0) [n=int:1]\nAddPoint (2 0) [n=int:2]\n");
    EXPECT_EQ(RecordedWithRows("Collection 1 1\nPoint 1 0\nPoint 2 0\nPoint 3 0\n", "1\n2\n"),
              "AddPoint (1 0) [n=int:1]\nAddPoint (2 0) [n=int:1]\nAddPoint (3 0) [n=int:1]\n");
    EXPECT_EQ(RecordedWithRows("Collection 0\nPoint 1 0\n", "1\n2\n"),
              "AddPoint (1 0) [n=int:2]\n");
}

TEST(MIFReader, CollectionOnTheLastRowKeepsIt)
{
    EXPECT_EQ(RecordedWithRows("Collection 2\nPoint 1 0\nPoint 2 0\nPoint 3 0\n", "1\n"),
              "AddPoint (1 0) [n=int:1]\nAddPoint (2 0) [n=int:1]\nAddPoint (3 0)\n");
}

TEST(MIFReader, CollectionOfANegativeNumberKeepsItsRow)
{
    EXPECT_EQ(RecordedWithRows("Collection -2147483648\nPoint 1 0\nPoint 2 0\n", "1\n2\n"),
              "AddPoint (1 0) [n=int:1]\nAddPoint (2 0) [n=int:1]\n");
}

TEST(MIFReader, NegativeCountsAreLengthErrors)
{
    for (const char* data : {"Region -1\n", "Region 1\n-1\n", "Multipoint -1\n", "PLine -1\n",
                             "PLine\n-5\n", "PLine Multiple -1\n", "PLine Multiple 1\n-1\n"})
    {
        EXPECT_THROW(RecordedObjects(data), std::length_error) << data;
    }
    EXPECT_THROW(Recorded(CMifPair("Columns -1\nData\n")), std::length_error);
}

TEST(MIFReader, CountsBeyondAllMemoryAreLengthErrors)
{
    for (const char* data :
         {"Region 2147483647\n", "Region 1\n2147483647\n", "Multipoint 2147483647\n",
          "PLine 2147483647\n", "PLine Multiple 2147483647\n", "Region 30000000\n",
          "PLine 134217728\n", "Multipoint 134217728\n"})
    {
        EXPECT_THROW(RecordedObjects(data), std::length_error) << data;
    }
    EXPECT_THROW(Recorded(CMifPair("Columns 2147483647\nData\n")), std::length_error);
}

TEST(MIFReader, LargeCountsThatTheFileLacksDropTheObject)
{
    for (const char* data : {"Region 20000000\n", "Region 1\n134217727\n", "Multipoint 134217727\n",
                             "PLine 134217727\n", "PLine Multiple 20000000\n"})
    {
        EXPECT_EQ(RecordedObjects(data), "") << data;
    }
    EXPECT_EQ(Recorded(CMifPair("Columns 100000000\nData\n")), "false\n");
}

TEST(MIFReader, ExceptionOfTheHostPassesThrough)
{
    class CThrowing final : public mif::IMIFReader
    {
    public:
        void AddArc(const mif::CArcMIF&) override { }
        void AddRoundRect(const mif::CRoundRectMIF&) override { }
        void AddEllipse(const mif::CRectMIF&) override { }
        void AddRect(const mif::CRectMIF&) override { }
        void AddText(const mif::CTextMIF&) override { }
        void AddPolyline(const mif::CPolylineMIF&) override { }
        void AddRegion(const mif::CRegionMIF&) override { }
        void AddPoint(const mif::CPointMIF&) override { throw std::runtime_error("host"); }
        void SetProgressRange(int) override { }
        void SetProgress(int) override { }
        void Finish() override { }
    };
    CThrowing host;
    const CMifPair pair("Data\nPoint 1 2\n");
    EXPECT_THROW(mif::Read(pair.Path(), &host), std::runtime_error);
}

TEST(MIFReader, TextFollowsTheLocalCodec)
{
    const CMifPair pair("Data\nText \"\xCF\xEE\xEB\xE5\"\n0 0 1 1\n");
    {
        const CLocalCodec local("windows-1251");
        EXPECT_EQ(Recorded(pair), "AddText <Поле> (0 0)(1 1)\n");
    }
    const CLocalCodec local("KOI8-R");
    EXPECT_EQ(Recorded(pair), "AddText <оНКЕ> (0 0)(1 1)\n");
}

TEST(MIFReader, LettersThatTheCodecLacksBecomeQuestionMarks)
{
    const CLocalCodec local("windows-1253"); // 0xD2 is no letter of it
    EXPECT_EQ(RecordedObjects("Text \"a\xD2z\"\n0 0 1 1\n"), "AddText <a?z> (0 0)(1 1)\n");
}

TEST(MIFReader, CountsRowsTaken)
{
    const CMifPair pair("Columns 1\nn Integer\nData\nPoint 1 2\nCollection\nPoint 1 2\nPoint 1 2\n",
                        "1\n2\n3\n4\n");
    CMifRecorder recorder;
    mif::CMIFReader reader(&recorder);
    EXPECT_TRUE(reader.Read(pair.Path()));
    EXPECT_EQ(reader.RowsTaken(), 2);
    EXPECT_EQ(reader.Columns().size(), 1U);
}
