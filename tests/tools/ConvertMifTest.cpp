// SPDX-License-Identifier: MIT
// `velorx convert` to and from MIF/MID pairs.
#include "tests/tools/ConvertSupport.h"
#include "tests/tools/RunVelorx.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <filesystem>

namespace velorx::test {

namespace {

using Strings = std::vector<std::string>;

constexpr char kPlan[] = "data/survey-plan.dxf";
constexpr char kHeader[] = "Version 450\nCharset \"WindowsCyrillic\"\nDelimiter \";\"\n";

// A table of two layers.
constexpr char kTable[] = "Columns 2\nLAYER Char(20)\nN Integer\nData\nPoint 1 2\nPoint 3 4\n"
                          "Region 2\n4\n0 0\n10 0\n10 10\n0 10\n3\n2 2\n4 2\n4 4\n";
constexpr char kRows[] = "\"Wells\";1\n\"Roads\";2\n\"Wells\";3\n";

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

// A drawing with entities and nothing else.
std::string Drawing(const std::string& entities)
{
    return "0\nSECTION\n2\nENTITIES\n" + entities + "0\nENDSEC\n0\nEOF\n";
}

class ConvertMif : public testing::Test
{
protected:
    ConvertMif()
    {
        folder.Write("in.mif", std::string(kHeader) + kTable);
        folder.Write("in.mid", kRows);
    }

    SRun Convert(Strings arguments) const
    {
        arguments.insert(arguments.begin(), "convert");
        return RunVelorx(arguments);
    }
    std::string Path(const std::string& name) const { return folder.path + '/' + name; }
    std::string File(const std::string& name) const { return ReadFile(Path(name)); }

    const CTemporaryFolder folder;
};

} // namespace

TEST_F(ConvertMif, DrawingBecomesAPairInTheSpellingOfItsName)
{
    const SRun run = Convert({kPlan, Path("PLAN.MIF")});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_TRUE(std::filesystem::exists(Path("PLAN.MIF")));
    EXPECT_TRUE(std::filesystem::exists(Path("PLAN.MID")));
    EXPECT_TRUE(Contains(File("PLAN.MIF"), "Columns 5\nLAYER CHAR(80)\n"));
}

TEST_F(ConvertMif, DrawingBecomesAFolderOfPairsOneALayer)
{
    const SRun run = Convert({"--to", "mif", kPlan, Path("plan") + "/"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    const Strings names = NamesIn(Path("plan"));
    EXPECT_EQ(names.size() % 2, 0U);
    EXPECT_GT(names.size(), 20U);
    EXPECT_TRUE(std::filesystem::exists(Path("plan/Дороги оси.mif")));
    EXPECT_TRUE(std::filesystem::exists(Path("plan/Дороги оси.mid")));
    EXPECT_FALSE(Contains(File("plan/Дороги оси.mif"), "LAYER"));
}

TEST_F(ConvertMif, DrawingMayHaveMoreLayersThanFilesAreUsuallyOpen)
{
    constexpr int kLayers = 200;
    std::string lines;
    for (int i = 0; i < kLayers; ++i) {
        lines += "0\nLINE\n8\nL" + std::to_string(i) + "\n10\n0\n20\n0\n11\n5\n21\n5\n";
    }
    folder.Write("many.dxf", Drawing(lines));
    rlimit before = {};
    getrlimit(RLIMIT_NOFILE, &before);
    rlimit few = before;
    few.rlim_cur = 64;
    setrlimit(RLIMIT_NOFILE, &few);
    const SRun run = Convert({"--to", "mif", Path("many.dxf"), Path("many")});
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(NamesIn(Path("many")).size(), 2U * kLayers);
}

TEST_F(ConvertMif, TableComesOutAsItWas)
{
    EXPECT_EQ(Convert({"--precision", "1", Path("in.mif"), Path("out.mif")}).exitCode, 0);
    EXPECT_EQ(File("out.mid"), kRows);
    EXPECT_TRUE(Contains(File("out.mif"), "Columns 2\nLAYER CHAR(80)\nN INTEGER\n"));
    EXPECT_TRUE(Contains(File("out.mif"),
                         "REGION 2\n4\n0.0 0.0\n10.0 0.0\n10.0 10.0\n0.0 10.0\n3\n"
                         "2.0 2.0\n4.0 2.0\n4.0 4.0\nPEN (1, 2, 0)\n"))
        << File("out.mif");
}

TEST_F(ConvertMif, FloatsKeepTheirDigits)
{
    folder.Write("f.mif",
                 std::string(kHeader) + "Columns 1\nF Float\nData\nPoint 1 2\nPoint 3 4\n");
    folder.Write("f.mid", "12.7\n-0.1\n");
    const SRun run = Convert({Path("f.mif"), Path("g.mif")});
    EXPECT_TRUE(Contains(run.out, "Nothing was lost or changed")) << run.out;
    EXPECT_TRUE(Contains(File("g.mif"), "\nF FLOAT\n")) << File("g.mif");
    EXPECT_EQ(File("g.mid"), "12.7\n-0.1\n");
    EXPECT_EQ(Convert({Path("f.mif"), Path("f.dxf")}).exitCode, 0);
    EXPECT_TRUE(Contains(File("f.dxf"), "\n12.7\r\n"));
    EXPECT_FALSE(Contains(File("f.dxf"), "12.699"));
}

TEST_F(ConvertMif, FloatsOfManyDigitsAreListed)
{
    folder.Write("f.mif",
                 std::string(kHeader) + "Columns 1\nF Float\nData\nPoint 1 2\nPoint 3 4\n");
    folder.Write("f.mid", "12.7\n123456.789\n");
    const SRun run = Convert({Path("f.mif"), Path("g.mif")});
    EXPECT_TRUE(Contains(run.out,
                         "1  numbers of Float columns with seven digits or more, of which "
                         "about seven are read (layers: f 1)"))
        << run.out;
    EXPECT_EQ(File("g.mid"), "12.7\n123456.79\n");
}

TEST_F(ConvertMif, LayersOfATableBecomePairsAndATableAgain)
{
    EXPECT_EQ(Convert({"--to", "mif", Path("in.mif"), Path("pairs") + "/"}).exitCode, 0);
    EXPECT_EQ(NamesIn(Path("pairs")),
              Strings({"Roads.mid", "Roads.mif", "Wells.mid", "Wells.mif"}));
    EXPECT_EQ(File("pairs/Wells.mid"), "1\n3\n");
    EXPECT_EQ(Convert({Path("pairs/Wells.mif"), Path("wells.mif")}).exitCode, 0);
    EXPECT_EQ(File("wells.mid"), "1\n3\n");
}

TEST_F(ConvertMif, LayerNamesOfADrawingNeverLeaveTheFolder)
{
    folder.Write("in.dxf",
                 Drawing("0\nPOINT\n8\n../../escaped\n10\n1\n20\n2\n"
                         "0\nPOINT\n8\na/b\n10\n1\n20\n2\n"
                         "0\nPOINT\n8\nA:B\n10\n1\n20\n2\n"));
    const SRun run = Convert({"--to", "mif", Path("in.dxf"), Path("pairs") + "/"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(NamesIn(Path("pairs")),
              Strings({"A_B_1.mid", "A_B_1.mif", "_.._.._escaped.mid", "_.._.._escaped.mif",
                       "a_b.mid", "a_b.mif"}));
    EXPECT_TRUE(Contains(run.out, "The layer a/b is in the table a_b")) << run.out;
}

TEST_F(ConvertMif, TextOfADrawingIsPlainInATable)
{
    folder.Write("in.dxf",
                 Drawing("0\nTEXT\n8\n0\n10\n1\n20\n2\n40\n2.5\n50\n90\n1\n%%p5 \\U+0416\n"
                         "0\nMTEXT\n8\n0\n10\n1\n20\n2\n40\n2.5\n1\n{\\fArial|b1;two\\Plines}\n"));
    EXPECT_EQ(Convert({"--precision", "2", Path("in.dxf"), Path("out.mif")}).exitCode, 0);
    EXPECT_TRUE(Contains(File("out.mif"),
                         "TEXT \"\xB1"
                         "5 \xC6\"\n1.00 2.00 "))
        << File("out.mif");
    EXPECT_TRUE(Contains(File("out.mif"), "Angle 90.00\n"));
    EXPECT_TRUE(Contains(File("out.mif"), "TEXT \"two\\nlines\"\n"));
    EXPECT_TRUE(Contains(File("out.mif"), "FONT (\"Arial\", 1, 0, 0)\n"));
}

TEST_F(ConvertMif, LayersOfATableAreLayersOfADrawing)
{
    const SRun run = Convert({Path("in.mif"), Path("out.dxf")});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    const std::string drawing = File("out.dxf");
    const std::string entities = drawing.substr(drawing.find("ENTITIES"));
    EXPECT_TRUE(Contains(entities, "8\r\nWells\r\n"));
    EXPECT_TRUE(Contains(entities, "8\r\nRoads\r\n"));
    EXPECT_TRUE(Contains(run.out, "Region"));
}

TEST_F(ConvertMif, TextKeepsPlaceHeightAndAngleInADrawing)
{
    folder.Write("in.mif",
                 std::string(kHeader)
                     + "Columns 0\nData\nText\n\"\xC4\xEE\xEC\"\n10 20 40 30\nAngle 30\n");
    EXPECT_EQ(Convert({"--precision", "2", Path("in.mif"), Path("out.dxf")}).exitCode, 0);
    const std::string drawing = File("out.dxf");
    for (const char* group : {"10\r\n10.00\r\n", "20\r\n20.00\r\n", "40\r\n6.90\r\n",
                              "50\r\n30.00\r\n", "1\r\n\xC4\xEE\xEC\r\n"})
    {
        EXPECT_TRUE(Contains(drawing.substr(drawing.find("ENTITIES")), group)) << group;
    }
}

TEST_F(ConvertMif, CodePageHoldsForBothFiles)
{
    folder.Write("utf8.mif", std::string(kHeader) + "Columns 1\nA Char(9)\nData\nPoint 1 2\n");
    folder.Write("utf8.mid", "\"Дом\"\n");
    EXPECT_EQ(Convert({"--codepage", "UTF-8", Path("utf8.mif"), Path("out.mif")}).exitCode, 0);
    EXPECT_EQ(File("out.mid"), "\"Дом\"\n");
}

TEST_F(ConvertMif, OptionChordTellsHowFineCurvesAre)
{
    folder.Write("in.mif", std::string(kHeader) + "Columns 0\nData\nEllipse 0 0 100 100\n");
    std::size_t before = 0;
    for (const char* chord : {"10", "1", "0.1", "0.01"}) {
        EXPECT_EQ(Convert({"--force", "--chord", chord, Path("in.mif"), Path("out.mif")}).exitCode,
                  0);
        const std::size_t size = File("out.mif").size();
        EXPECT_GT(size, before);
        before = size;
    }
}

TEST_F(ConvertMif, LossesAreListedWithTheirLayers)
{
    const SRun run = Convert({kPlan, Path("plan.mif")});
    EXPECT_TRUE(Contains(run.out, "objects lost their heights (layers: Отметки 61")) << run.out;
    EXPECT_TRUE(Contains(run.out, "1  images (layers: Подложка 1)"));
    EXPECT_TRUE(Contains(run.out, "hatch patterns became the nearest pattern of a brush"));
}

TEST_F(ConvertMif, MapBecomesATableWithItsCodes)
{
    folder.Write("code.mif",
                 std::string(kHeader)
                     + "Columns 1\nSXF_CODE Integer\nData\nPoint 100 200\nPoint 300 400\n");
    folder.Write("code.mid", "31410000\n31410001\n");
    ASSERT_EQ(Convert({"--scale", "1000", Path("code.mif"), Path("map.sxf")}).exitCode, 0);
    ASSERT_EQ(Convert({Path("map.sxf"), Path("out.mif")}).exitCode, 0);
    EXPECT_TRUE(Contains(File("out.mif"), "SXF_CODE INTEGER\n")) << File("out.mif");
    EXPECT_TRUE(Contains(File("out.mid"), "31410001")) << File("out.mid");
}

TEST_F(ConvertMif, TableThatCannotBeReadLeavesNoPair)
{
    folder.Write("bad.mif", "Version 450\n");
    const SRun run = Convert({Path("bad.mif"), Path("out.mif")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Contains(run.err, "the header cannot be read")) << run.err;
    EXPECT_FALSE(std::filesystem::exists(Path("out.mif")));
    EXPECT_FALSE(std::filesystem::exists(Path("out.mid")));
}

TEST_F(ConvertMif, DrawingWithoutObjectsBecomesAnEmptyTable)
{
    folder.Write("in.dxf", Drawing(""));
    const SRun run = Convert({Path("in.dxf"), Path("out.mif")});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_TRUE(Contains(File("out.mif"), "DATA\n"));
    EXPECT_EQ(File("out.mid"), "");
    EXPECT_TRUE(Contains(run.out, "There is nothing that a table could hold"));
}

} // namespace velorx::test
