// SPDX-License-Identifier: MIT
#include "tests/support/TextFile.h"
#include "VelorExchange/dxf/write/StyleFiles.h"

#include <QElapsedTimer>

using namespace VelorExchange::dxf;
using VelorExchange::test::CTextFile;

namespace {

// Names and numbers, e.g. "BOX 130, CIRC 131".
std::string Read(const QByteArray& bytes)
{
    const CTextFile file(bytes);
    std::map<QString, int> shapes;
    const bool result = GetShapesFromFile(file.Path(), shapes);
    EXPECT_EQ(result, !shapes.empty());
    std::string text;
    for (const auto& [name, number] : shapes) {
        text += (text.empty() ? "" : ", ") + name.toStdString() + ' ' + std::to_string(number);
    }
    return text;
}

} // namespace

TEST(ShapeFile, EmptyPathAndMissingFileGiveFalse)
{
    std::map<QString, int> shapes{{QStringLiteral("A"), 1}};
    EXPECT_FALSE(GetShapesFromFile(QString(), shapes));
    EXPECT_FALSE(GetShapesFromFile(QStringLiteral("/no/such/file.shp"), shapes));
    EXPECT_EQ(shapes.size(), 1U);
}

TEST(ShapeFile, EarlierElementsCountForTheResult)
{
    const CTextFile file("nothing\n");
    std::map<QString, int> shapes{{QStringLiteral("A"), 1}};
    EXPECT_TRUE(GetShapesFromFile(file.Path(), shapes));
}

TEST(ShapeFile, LineWithAStarNamesAShape)
{
    EXPECT_EQ(Read("*130,6,BOX\r\n014,010,01C\n* 131 , 7 , CI RC\n"), "BOX 130, CIRC 131");
    EXPECT_EQ(Read("  *130,6,BOX\n"), "BOX 130"); // blanks go first
    EXPECT_EQ(Read("\t*130,6,BOX\n"), "");
}

TEST(ShapeFile, NameKeepsWhatFollowsTheSecondComma)
{
    EXPECT_EQ(Read("*130,6,BOX,2\n"), "BOX,2 130");
}

TEST(ShapeFile, LineWithoutTwoCommasIsDropped)
{
    EXPECT_EQ(Read("*130\n*130,6\n*130 6 BOX\n"), "");
}

TEST(ShapeFile, NumberHasToBeAboveZeroAndDecimal)
{
    EXPECT_EQ(Read("*0,6,BOX\n*-1,6,BOX\n*x,6,BOX\n*0x10,6,BOX\n*1.0,6,BOX\n*99999999999,6,A\n"),
              "");
}

TEST(ShapeFile, NameMustNotBeEmpty)
{
    EXPECT_EQ(Read("*130,6,\n*130,6, \r\n"), "");
}

TEST(ShapeFile, LaterShapeOfANameStands)
{
    EXPECT_EQ(Read("*130,6,BOX\n*131,6,BOX\n*132,6,box\n"), "BOX 131, box 132");
}

TEST(ShapeFile, LastLineNeedsNoLineEnd)
{
    EXPECT_EQ(Read("*130,6,BOX"), "BOX 130");
}

TEST(ShapeFile, ManyShapesAndOneEndlessLineTakeLinearTime)
{
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(Read(QByteArray("*130,6,BOX\n").repeated(100000)), "BOX 130");
    // Every other character is a blank to take out.
    EXPECT_EQ(Read("*1,2," + QByteArray("x ").repeated(1000000)), std::string(1000000, 'x') + " 1");
    EXPECT_LT(timer.elapsed(), 30000);
}
