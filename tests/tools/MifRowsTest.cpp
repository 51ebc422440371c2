// SPDX-License-Identifier: MIT
// The rows that velorx counts from outside, against those that the library's reader takes.
#include "tools/velorx/formats/MifRows.h"
#include "tests/support/MifRecorder.h"
#include "VelorExchange/mif/MIFReader_p.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

namespace velorx::test {

namespace {

using namespace VelorExchange::mif;

const QByteArray kHeader = "Version 300\nDelimiter \",\"\nColumns 1\na Integer\nData\n";

/// Follows a read as the summary does.
class CFollower final : public IMIFReader
{
public:
    explicit CFollower(const QString& path)
        : rows(path + QLatin1String(".mif"), path + QLatin1String(".mid"))
    {
    }

    void AddArc(const CArcMIF& /*arc*/) override { rows.Deliver(); }
    void AddRoundRect(const CRoundRectMIF& /*rect*/) override { rows.Deliver(); }
    void AddEllipse(const CRectMIF& /*rect*/) override { rows.Deliver(); }
    void AddRect(const CRectMIF& /*rect*/) override { rows.Deliver(); }
    void AddText(const CTextMIF& /*text*/) override { rows.Deliver(); }
    void AddPolyline(const CPolylineMIF& /*line*/) override { rows.Deliver(); }
    void AddRegion(const CRegionMIF& /*region*/) override { rows.Deliver(); }
    void AddPoint(const CPointMIF& /*point*/) override { rows.Deliver(); }
    void SetProgressRange(int /*total*/) override { }
    void SetProgress(int position) override { rows.Report(static_cast<quint32>(position)); }
    void Finish() override { }

    CMifRows rows;
};

/// The rows taken of `rows` rows for the objects `data`, by the reader; checks that velorx agrees.
int Taken(const QByteArray& data, int rows)
{
    static const VelorExchange::test::CMifPair pair; // one folder for thousands of inputs
    pair.Write("mif", kHeader + data);
    pair.Write("mid", QByteArray("1\n").repeated(rows));
    CFollower follower(pair.Path());
    CMIFReader reader(&follower);
    bool isWhole = false;
    try {
        isWhole = reader.Read(pair.Path());
    } catch (const std::length_error&) {
        isWhole = false; // the object at hand has taken no row
    }
    EXPECT_EQ(follower.rows.Taken(), reader.RowsTaken()) << data.toStdString();
    EXPECT_EQ(follower.rows.Left(), rows - reader.RowsTaken()) << data.toStdString();
    return isWhole ? reader.RowsTaken() : -1;
}

} // namespace

TEST(MifRows, AnObjectTakesOneRowWhateverItsParts)
{
    EXPECT_EQ(Taken("Point 1 2\nMultipoint 2\n1 2\n3 4\nPLine Multiple 2\n1\n1 2\n1\n3 4\n", 9), 3);
}

TEST(MifRows, ObjectsWithNothingToDeliverTakeARow)
{
    EXPECT_EQ(Taken("Region 2\n2\n1 2\n3 4\n0\nPen (1,2,0)\nCenter 1 2\nPoint 1 2\n", 9), 2);
    EXPECT_EQ(Taken("Region 0\n", 9), 1);
    EXPECT_EQ(Taken("Region x\nRegion 0\nBrush (1,2)\n", 9), 2);
    EXPECT_EQ(Taken("Multipoint 0\nSymbol (1,2,3)\nPLine Multiple 0\nsmooth\nPen (1,2,3)\n", 9), 2);
}

TEST(MifRows, DroppedObjectsTakeNone)
{
    EXPECT_EQ(Taken("Region 1\n2\n1 2\nhalf\nPoint 1 2\n", 9), 1);
    EXPECT_EQ(Taken("Region 1\n1\n1 2\nPen (1)\nPoint 1 2\n", 9), 1);
    EXPECT_EQ(Taken("Region\nMultipoint\nMultipoint 0\nSymbol\nPoint 1\nNone\n", 9), 0);
    EXPECT_EQ(Taken("Region 2\n0\n", 9), 0);
    EXPECT_EQ(Taken("Region 1\n3\n1 2\n", 9), 0);
}

TEST(MifRows, PartsOfACollectionShareARow)
{
    EXPECT_EQ(Taken("Collection 2\nPoint 1 2\nPoint 1 2\nPoint 1 2\n", 9), 2);
    EXPECT_EQ(Taken("Collection\nPoint 1 2\nPoint 1 2\nPoint 1 2\nPoint 1 2\n", 9), 2);
    EXPECT_EQ(Taken("Collection 2\nNone\nPoint 1 2\nCollection 1\nPoint 1 2\n", 9), 1);
    EXPECT_EQ(Taken("Collection -1\nPoint 1 2\nPoint 1 2\n", 9), 1);
}

TEST(MifRows, RowsEnd)
{
    EXPECT_EQ(Taken("Point 1 2\nPoint 1 2\nPoint 1 2\n", 2), 2);
    EXPECT_EQ(Taken("Collection 2\nPoint 1 2\nPoint 1 2\nPoint 1 2\n", 1), 1);
    EXPECT_EQ(Taken("Point 1 2\n", 0), 0);
}

TEST(MifRows, FindsLinesThatAreLongOrFollowBlankOnes)
{
    const QByteArray blanks(5000, ' ');
    EXPECT_EQ(Taken(QByteArray(3000, 'x') + "\n\n" + blanks + "\r\nRegion" + blanks + "0\r\n\n", 9),
              1);
    EXPECT_EQ(
        Taken(QByteArray(3000, 'x') + "\nCollection 2" + blanks + "\nPoint 1 2\nPoint 3 4", 9), 1);
}

TEST(MifRows, AFileThatEndsWithNoLineEndCounts)
{
    EXPECT_EQ(Taken("Region 0", 9), 1);
    EXPECT_EQ(Taken("Multipoint 0", 9), 1);
    EXPECT_EQ(Taken("Point 1 2\nPLine Multiple 0", 9), 2);
}

TEST(MifRows, AgreesWithTheReaderOnTablesOfAnyLines)
{
    static constexpr const char* kLines[] = {
        "Region 0",
        "Region 1",
        "Region 2",
        "Region",
        "0",
        "1",
        "2",
        "3",
        "1 2",
        "3 4",
        "5",
        "half",
        "Pen (1,2,3)",
        "Pen (1)",
        "Brush (1,2)",
        "Brush",
        "Center 1 2",
        "Center 1",
        "Multipoint 0",
        "Multipoint 1",
        "Multipoint",
        "Symbol (1,2)",
        "Symbol",
        "PLine Multiple",
        "PLine Multiple 0",
        "PLine 0",
        "PLine",
        "PLine Multiple 1",
        "smooth",
        "Point 1 2",
        "Point",
        "Collection",
        "Collection 1",
        "Collection 2",
        "Text \"Region\"",
        "Line 1 2 3 4",
        "None",
        "",
        "  ",
        "Region -1",
    };
    std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same files each time
    for (int i = 0; i < 3000; ++i) {
        QByteArray data;
        for (auto line = random() % 30; line > 0; --line) {
            data += kLines[random() % std::size(kLines)];
            data += line > 1 || random() % 4 != 0 ? "\n" : "";
        }
        Taken(data, static_cast<int>(random() % 12));
        ASSERT_FALSE(testing::Test::HasFailure());
    }
}

} // namespace velorx::test
