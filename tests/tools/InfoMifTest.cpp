// SPDX-License-Identifier: MIT
// `velorx info` over MIF/MID pairs.
#include "tests/tools/RunVelorx.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

// "Имя" and "Лес" in windows-1251.
constexpr char kTable[] = "Version 300\nCharset \"WindowsCyrillic\"\nDelimiter \";\"\n"
                          "CoordSys NonEarth Units \"m\"\nColumns 3\n\xC8\xEC\xFF Char (20)\n"
                          "area Decimal (10, 2)\nold Logical\nData\n"
                          "Region 2\n3\n1 2\n30 4\n5 -60.5\n3\n1 2\n3 4\n5 6\n"
                          "Point 7 80\nNone\nText \"t\"\n1 2 3 4\n";
constexpr char kRows[] = "\"\xCB\xE5\xF1\";12.5;true\n\"b\";;\n";

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

QJsonObject Parse(const SRun& run)
{
    return QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
}

std::string Compact(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

/// A folder with one pair in it.
class InfoMif : public testing::Test
{
protected:
    std::string Write(const std::string& table, const std::string& rows) const
    {
        static_cast<void>(folder.Write("table.mid", rows));
        return folder.Write("table.mif", table);
    }

    CTemporaryFolder folder;
};

} // namespace

TEST_F(InfoMif, TellsATableToPeople)
{
    const std::string file = Write(kTable, kRows);
    const SRun run = RunVelorx({"info", "--rows", "2", file});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              file
                  + ": MIF/MID table\n"
                    "  Version         300\n"
                    "  Character set   WindowsCyrillic\n"
                    "  Delimiter       ;\n"
                    "  Coordinates     NonEarth Units \"m\"\n"
                    "  Attribute rows  2 of 2 taken\n"
                    "  Attributes      7\n"
                    "  Extents from    1, -60.5\n"
                    "  Extents to      30, 80\n"
                    "\n"
                    "Columns (3)\n"
                    "  Name  Type     Definition\n"
                    "  Имя   Char     Char (20)\n"
                    "  area  Decimal  Decimal (10, 2)\n"
                    "  old   Logical  Logical\n"
                    "\n"
                    "Objects (3)\n"
                    "  Kind    Objects  Parts\n"
                    "  Text          1      1\n"
                    "  Region        1      2\n"
                    "  Point         1      1\n"
                    "  All           3      4\n"
                    "\n"
                    "First rows (2)\n"
                    "  Kind    Имя  area  old\n"
                    "  Region  Лес  12.5  true\n"
                    "  Point   b\n");
}

TEST_F(InfoMif, TellsATableToPrograms)
{
    QJsonObject json = Parse(RunVelorx({"info", "--json", "--rows", "1", Write(kTable, kRows)}));
    json.remove("file");
    EXPECT_EQ(Compact(json),
              R"j({"attributes_total":7,"callbacks":{"AddPoint":1,"AddRegion":2,"AddText":1},)j"
              R"j("charset":"WindowsCyrillic","columns":[)j"
              R"j({"definition":"Char (20)","name":"Имя","type":"Char"},)j"
              R"j({"definition":"Decimal (10, 2)","name":"area","type":"Decimal"},)j"
              R"j({"definition":"Logical","name":"old","type":"Logical"}],)j"
              R"j("coordsys":"NonEarth Units \"m\"","delimiter":";",)j"
              R"j("extents":{"max":[30,80],"min":[1,-60.5]},"family":"MIF",)j"
              R"j("mid_rows_left":0,"mid_rows_taken":2,)j"
              R"j("objects":{"Point":1,"Region":1,"Text":1},"records_without_attributes":1,)j"
              R"j("result":true,)j"
              R"j("rows":[{"attributes":{"area":12.5,"old":true,"Имя":"Лес"},"kind":"Region"}],)j"
              R"j("version":"300"})j");
}

TEST_F(InfoMif, CountsEveryKindOfObject)
{
    const QJsonObject json = Parse(RunVelorx(
        {"info", "--json",
         Write("Columns 0\nData\nArc 1 2 3 4 0 90\nRoundRect 1 2 3 4 5\nEllipse 1 2 3 4\n"
               "Rect 1 2 3 4\nText \"t\"\n1 2 3 4\nLine 1 2 3 4\nPLine Multiple 2\n1\n1 2\n1\n3 4\n"
               "Region 1\n3\n1 2\n3 4\n5 6\nPoint 1 2\nMultipoint 2\n1 2\n3 4\n",
               "")}));
    EXPECT_EQ(Compact(json.value("callbacks").toObject()),
              R"({"AddArc":1,"AddEllipse":1,"AddPoint":3,"AddPolyline":3,"AddRect":1,)"
              R"("AddRegion":1,"AddRoundRect":1,"AddText":1})");
    EXPECT_EQ(Compact(json.value("objects").toObject()),
              R"({"Arc":1,"Ellipse":1,"Point":2,"Polyline":2,"Rect":1,"Region":1,"RoundRect":1,)"
              R"("Text":1})");
}

TEST_F(InfoMif, TellsThatThereIsNoMidFile)
{
    const std::string file = folder.Write("alone.MIF", "Data\nPoint 1 2\n");
    EXPECT_TRUE(Contains(RunVelorx({"info", file}).out, "  Attribute rows  no .mid file\n"));
    const QJsonObject json = Parse(RunVelorx({"info", "--json", file}));
    EXPECT_TRUE(json.value("mid_rows_left").isNull());
    EXPECT_EQ(json.value("mid_rows_taken").toInt(-1), 0);
}

TEST_F(InfoMif, TellsRowsThatNoObjectTook)
{
    const SRun run =
        RunVelorx({"info", Write("Columns 1\na Integer\nData\nPoint 1 2\n", "1\n2\n3")});
    EXPECT_TRUE(Contains(run.out, "  Attribute rows  1 of 3 taken\n")) << run.out;
}

TEST_F(InfoMif, PointsThatAreNotFiniteStayOutOfTheExtents)
{
    const SRun run = RunVelorx({"info", Write("Data\nPoint nan 1\nPoint 1 inf\nPoint 2 3\n", "")});
    EXPECT_TRUE(Contains(run.out, "  Extents from    2, 3\n  Extents to      2, 3\n")) << run.out;
    const SRun empty = RunVelorx({"info", Write("Data\n", "")});
    EXPECT_FALSE(Contains(empty.out, "Extents")) << empty.out;
}

TEST_F(InfoMif, ColumnTypeThatIsNotReadIsToldAndFails)
{
    const std::string file = Write("Columns 2\na LargeInt\nb Char(3)\nData\nPoint 1 2\n", "1,2\n");
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Contains(run.out,
                         "  Name  Type         Definition\n"
                         "  a     (not known)  LargeInt\n"
                         "  b     Char         Char(3)\n"))
        << run.out;
    EXPECT_EQ(run.err, "velorx: " + file + ": the header cannot be read\n");
    EXPECT_FALSE(Parse(RunVelorx({"info", "--json", file})).value("result").toBool(true));
}

TEST_F(InfoMif, ImpossibleCountIsToldAndFails)
{
    const std::string file = Write("Data\nPoint 1 2\nRegion -1\nPoint 1 2\n", "");
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Contains(run.out, "Objects (1)\n")) << run.out;
    EXPECT_EQ(run.err, "velorx: " + file + ": the table tells a count that cannot be\n");
}

TEST_F(InfoMif, HeaderThatPromisesMoreColumnsThanItHasEnds)
{
    const SRun run = RunVelorx({"info", Write("Columns 2147483647\na Char(3)\n", "")});
    EXPECT_EQ(run.exitCode, 1);
}

TEST_F(InfoMif, NamesThatTheReaderWouldNotOpenAreRefused)
{
    const std::string mixed = folder.Write("mixed.Mif", kTable);
    const SRun run = RunVelorx({"info", mixed});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Contains(run.err, "a table is read from NAME.mif")) << run.err;
    static_cast<void>(Write(kTable, kRows));
    EXPECT_EQ(RunVelorx({"info", folder.Write("table.MIF", kTable)}).exitCode, 1);
}

TEST_F(InfoMif, OpensPathsWithCyrillicLetters)
{
    static_cast<void>(folder.Write("Карты/Леса.mid", kRows));
    const SRun run = RunVelorx({"info", folder.Write("Карты/Леса.mif", kTable)});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_TRUE(Contains(run.out, "  Attribute rows  2 of 2 taken\n")) << run.out;
}

TEST_F(InfoMif, LetsNoValueSteerTheTerminal)
{
    const SRun run = RunVelorx(
        {"info", "--rows", "1", Write("Columns 1\na Char(9)\nData\nPoint 1 2\n", "a\x1b[31mb\n")});
    EXPECT_TRUE(Contains(run.out, "  Point  a\\x1b[31mb\n")) << run.out;
}

TEST_F(InfoMif, RowsMustBeACount)
{
    const std::string file = Write(kTable, kRows);
    for (const char* rows : {"-1", "many", "1.5", "99999999999"}) {
        const SRun run = RunVelorx({"info", "--rows", rows, file});
        EXPECT_EQ(run.exitCode, 2) << rows;
        EXPECT_EQ(run.out, "") << rows;
    }
    EXPECT_FALSE(Contains(RunVelorx({"info", "--rows", "0", file}).out, "First rows"));
}

} // namespace velorx::test
