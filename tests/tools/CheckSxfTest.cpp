// SPDX-License-Identifier: MIT
#include "tests/support/SxfBuilder.h"
#include "tests/tools/CheckSupport.h"

#include <gtest/gtest.h>

#include <limits>

namespace velorx::test {

using namespace SxfBuilder;

namespace {

using Strings = std::vector<std::string>;

Strings Found(const QByteArray& map)
{
    return FindingsIn("SXF", false, map.toStdString());
}

QByteArray Map(const QByteArray& records, int count)
{
    QByteArray file = File(records, count);
    Put(file, 400, I32(0x544144));
    Put(file, 404, I32(52));
    MendChecksum(file);
    return file;
}

Strings FoundInRecord(const CRecord& record)
{
    return Found(Map(record.Bytes(), 1));
}

CRecord Line()
{
    CRecord record;
    record.vertices = 2;
    record.metric = F64s({0, 0, 1, 1});
    return record;
}

} // namespace

TEST(CheckSxf, SoundMapHasNoFindings)
{
    CRecord line = Line();
    line.subContours = 1;
    line.metric += I16(0) + I16(1) + F64s({5, 5});
    line.flags |= kDrawing | kExtra | kSemantics;
    line.metric += Drawing(0x80, I32(0) + I32(1)) + I32(0x7FFF7FFD) + I32(12) + I32(0);
    line.semantics = Semantic(9, 126, 2, QByteArray("ab\0", 3)) + Semantic(1, 8, 0, F64(1))
        + Semantic(2, 127, 2, QByteArray(4, 'a'));
    CRecord text;
    text.flags = kText | kFloat | k3D;
    text.vertices = 1;
    text.metric = F32(1) + F32(2) + F32(3) + I8(3) + QByteArray("ab\0\0", 4);
    CRecord small;
    small.flags = kPoint | kInt32 | k3D;
    small.vertices = 1;
    small.metric = I32(1) + I32(2) + I16(3);
    EXPECT_EQ(Found(Map(line.Bytes() + text.Bytes() + small.Bytes(), 3)), Strings());
}

TEST(CheckSxf, FindsAnotherMagic)
{
    EXPECT_EQ(Found("GIF89a"), Strings({"no-magic byte 0"}));
}

TEST(CheckSxf, FindsAnotherVersion)
{
    QByteArray map = Map(QByteArray(), 0);
    Put(map, 8, I32(0x30000));
    EXPECT_EQ(Found(map), Strings({"other-version byte 8: 3"}));
}

TEST(CheckSxf, FindsAFileThatEndsInsideItsHeader)
{
    const Strings found = Found(Map(QByteArray(), 0).left(300));
    EXPECT_EQ(found[0], "short-header byte 300");
}

TEST(CheckSxf, FindsLengthsAndMarksOfTheHeader)
{
    QByteArray map = Map(QByteArray(), 0);
    Put(map, 4, I32(256));
    Put(map, 400, I32(0));
    Put(map, 404, I32(44));
    MendChecksum(map);
    EXPECT_EQ(
        Found(map),
        Strings({"bad-header byte 4: 256", "bad-header byte 400: 0", "bad-header byte 404: 44"}));
}

TEST(CheckSxf, FindsAWrongChecksum)
{
    QByteArray map = Map(QByteArray(), 0);
    Put(map, 12, I32(5));
    ASSERT_EQ(Found(map).size(), 1U);
    EXPECT_EQ(Found(map)[0].substr(0, 36), "bad-checksum byte 12: tells 0x5, is ");
}

TEST(CheckSxf, FindsACountOfRecordsThatAreNotThere)
{
    EXPECT_EQ(Found(Map(Line().Bytes(), 3)),
              Strings({"bad-record-count byte 440: tells 3, has 1"}));
    EXPECT_EQ(Found(Map(QByteArray(), -1)),
              Strings({"bad-record-count byte 440: tells -1, has 0"}));
}

TEST(CheckSxf, FindsPlacesOutOfStepAndGoesOnAtTheNextRecord)
{
    const QByteArray gap(10, 'x');
    CRecord unknown = Line();
    unknown.flags |= 9U;
    EXPECT_EQ(Found(Map(Line().Bytes() + gap + unknown.Bytes(), 2)),
              Strings({"out-of-step byte 516", "bad-kind byte 526: 9"}));
}

TEST(CheckSxf, GoesOnBehindAGapOfMillionsOfBytes)
{
    CRecord unknown = Line();
    unknown.flags |= 9U;
    const QByteArray gap(3 * 1024 * 1024 - 2, 'x');
    EXPECT_EQ(Found(Map(gap + unknown.Bytes(), 1)),
              Strings({"out-of-step byte 452", "bad-kind byte 3146178: 9"}));
}

TEST(CheckSxf, FindsLengthsThatCannotBe)
{
    CRecord record = Line();
    record.lengthError = 1000;
    EXPECT_EQ(FoundInRecord(record)[0], "bad-length byte 452: length 1064");
    record.lengthError = -64;
    EXPECT_EQ(FoundInRecord(record)[0], "bad-length byte 452: length 0");
}

TEST(CheckSxf, FindsALengthThatIsNotThatOfTheParts)
{
    CRecord record = Line();
    record.semantics = QByteArray(5, 'x'); // with no flag for it
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-length byte 452: length 69, used 64"}));
}

TEST(CheckSxf, FindsUnknownKinds)
{
    CRecord record = Line();
    record.flags |= 6U;
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-kind byte 452: 6"}));
}

TEST(CheckSxf, FindsCoordinatesThatDoNotFillTheirLength)
{
    CRecord record = Line();
    record.vertices = 3;
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-metric byte 452: 3 vertices are not there"}));
    record.vertices = 1;
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-metric byte 452: length 32, used 16"}));
    record.vertices = 2;
    record.subContours = 1;
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-metric byte 452: sub-contour 1 is missing"}));
    record.subContours = 0;
    record.metricError = 100;
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-metric byte 452: length 132"}));
    record = Line();
    record.flags = kText | kDouble;
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-metric byte 452: a text is not there"}));
}

TEST(CheckSxf, FindsMoreVerticesThanAreRead)
{
    CRecord record = Line();
    record.vertices = 40000;
    EXPECT_EQ(FoundInRecord(record), Strings({"many-vertices byte 452: 40000"}));
}

TEST(CheckSxf, FindsCoordinatesThatAreNotFinite)
{
    CRecord record = Line();
    record.metric = F64s({0, std::numeric_limits<double>::quiet_NaN(), 1, 1});
    EXPECT_EQ(FoundInRecord(record), Strings({"not-finite byte 492"}));
    record.flags = kFloat;
    record.metric = F32(0) + F32(0) + F32(1) + F32(std::numeric_limits<float>::infinity());
    EXPECT_EQ(FoundInRecord(record), Strings({"not-finite byte 496"}));
}

TEST(CheckSxf, FindsDrawingsThatDoNotFillTheirLength)
{
    CRecord record = Line();
    record.flags |= kDrawing;
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-drawing byte 452: it does not start"}));
    record.metric += I32(0x7FFF7FFE) + I32(500) + I32(0);
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-drawing byte 452: length 500"}));
    record = Line();
    record.flags |= kExtra;
    EXPECT_EQ(FoundInRecord(record),
              Strings({"bad-drawing byte 452: the block behind it does not start"}));
}

TEST(CheckSxf, FindsAttributesThatAreUnknownOrCutOff)
{
    CRecord record = Line();
    record.flags |= kSemantics;
    record.semantics = Semantic(5, 9, 0, QByteArray());
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-attribute byte 452: code 5 has type 9"}));
    record.semantics = Semantic(5, 126, 200, "ab");
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-attribute byte 452: code 5 is cut off"}));
    record.semantics = "ab";
    EXPECT_EQ(FoundInRecord(record), Strings({"bad-attribute byte 452: cut off"}));
}

TEST(CheckSxf, TellsOfBytesBehindTheLastRecord)
{
    EXPECT_EQ(Found(Map(Line().Bytes() + Line().Bytes(), 1)),
              Strings({"behind-records byte 516 (64 times)"}));
}

} // namespace velorx::test
