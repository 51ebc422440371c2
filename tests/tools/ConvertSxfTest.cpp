// SPDX-License-Identifier: MIT
// `velorx convert` to and from SXF maps.
#include "tests/tools/RunVelorx.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

constexpr char kDrawing[] = "data/survey-plan.dxf";

constexpr char kTextMap[] =
    ".SXF 4.0\n\nP000 Map\n\nP001 Map\n\nP207 2000\n\n.DAT 4\n\n"
    ".OBJ 71111110 SQR\n.MET 1\n4\n0 0\n0 50\n50 50\n0 0\n3\n10 20\n10 30\n20 30\n.SEM 2\n9 "
    "Lake\n4 2.5\n"
    ".OBJ 0 LIN\n.SEG roads\n3\n0 0 1\n10 20 2\n30 40 3\n.IMG 1\n_LINE 2\nCOLOR 255\nTHICK 500\n"
    ".OBJ 44200000 DOT\n1\n7 80\n"
    ".OBJ 0 TIT\n.SEG names\n.ALG LEFT 0\n2\n10 20\n10 32\n>word\n.IMG 1\n_TEXT 13\nCOLOR "
    "5\nHEIGHT 2500\n"
    "NAME Arial\n.END\n";

/// A folder with maps in it.
class ConvertSxf : public testing::Test
{
protected:
    std::string Path(const char* name) const { return folder.path + '/' + name; }

    /// Converts, and says how many objects of each kind the result has, by `velorx info`.
    std::string Convert(const std::string& source, const std::string& target,
                        const std::vector<std::string>& options = {}) const
    {
        std::vector<std::string> arguments = {"convert", source, target};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const SRun run = RunVelorx(arguments);
        EXPECT_EQ(run.exitCode, 0) << run.err;
        EXPECT_EQ(run.err, "");
        return Info(target, "objects") + Info(target, "layers");
    }

    std::string Info(const std::string& file, const char* key) const
    {
        const SRun run = RunVelorx({"info", "--json", file});
        const QJsonObject json =
            QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
        return QJsonDocument(json.value(QLatin1String(key)).toObject())
            .toJson(QJsonDocument::Compact)
            .toStdString();
    }

    CTemporaryFolder folder;
};

} // namespace

TEST_F(ConvertSxf, DemoDrawingComesThroughBothFormsWithoutALoss)
{
    const std::string binary = Convert(kDrawing, Path("plan.sxf"));
    const std::string text = Convert(Path("plan.sxf"), Path("plan.txt"), {"--precision", "12"});
    EXPECT_EQ(text, binary);
    EXPECT_EQ(Convert(Path("plan.txt"), Path("again.sxf")), binary);
    EXPECT_EQ(ReadFile(Path("again.sxf")), ReadFile(Path("plan.sxf")));
}

TEST_F(ConvertSxf, DemoDrawingBecomesObjectsOfEachKindOnItsLayers)
{
    Convert(kDrawing, Path("plan.sxf"));
    const std::string objects = Info(Path("plan.sxf"), "objects");
    EXPECT_EQ(objects, R"({"Area":140,"Line":209,"Point":76,"Text":121})");
    const std::string layers = Info(Path("plan.sxf"), "layers");
    EXPECT_NE(layers.find(R"("Отметки":)"), std::string::npos) << layers;
    EXPECT_NE(layers.find(R"("Горизонтали":20)"), std::string::npos) << layers;
}

TEST_F(ConvertSxf, MapBecomesADrawingAndComesBack)
{
    const std::string binary = Convert(kDrawing, Path("plan.sxf"));
    Convert(Path("plan.sxf"), Path("plan.dxf"));
    EXPECT_EQ(Convert(Path("plan.dxf"), Path("back.sxf")), binary)
        << "outlines do not become more on the way";
}

TEST_F(ConvertSxf, TextFormBecomesADrawing)
{
    Convert(folder.Write("map.txt", kTextMap), Path("map.dxf"));
    const std::string drawing = ReadFile(Path("map.dxf"));
    for (const char* part : {"\r\nPOLYLINE\r\n", "\r\nPOINT\r\n", "\r\nTEXT\r\n", "\r\nword\r\n",
                             "\r\nroads\r\n", "\r\nnames\r\n", "Lake"})
    {
        EXPECT_NE(drawing.find(part), std::string::npos) << part;
    }
}

TEST_F(ConvertSxf, MapBecomesATableAndComesBack)
{
    const std::string source = folder.Write("map.txt", kTextMap);
    Convert(source, Path("map.mif"));
    const std::string mif = ReadFile(Path("map.mif"));
    for (const char* part :
         {"\nREGION 2\n", "\nPLINE\n", "\nPOINT 80.000000 7.000000\n", "\nTEXT \"word\"\n"})
    {
        EXPECT_NE(mif.find(part), std::string::npos) << part << '\n' << mif;
    }
    EXPECT_EQ(Convert(Path("map.mif"), Path("back.txt"), {"--scale", "2000"}),
              R"({"Area":1,"Line":2,"Point":1,"Text":1})"
              R"({"SYSTEM":3,"names":1,"roads":1})");
    const std::string back = ReadFile(Path("back.txt"));
    EXPECT_NE(back.find(".OBJ 71111110 SQR\n"), std::string::npos) << back;
    EXPECT_NE(back.find("9 Lake\n"), std::string::npos) << back;
    EXPECT_NE(back.find("4 2.5\n"), std::string::npos) << back;
    EXPECT_NE(back.find("COLOR 255\n"), std::string::npos) << back;
}

TEST_F(ConvertSxf, TableBecomesAMapWithItsColumnsAsAttributes)
{
    folder.Write("parcels.mid", "\"Ivanov\",12,44200000\n\"Petrov\",13,0\n");
    const std::string table = folder.Write(
        "parcels.mif",
        "Version 300\nCharset \"WindowsCyrillic\"\nDelimiter \",\"\nColumns 3\n  OWNER Char(20)\n"
        "  NUMBER Integer\n  CODE Integer\nData\n\nRegion 1\n4\n0 0\n10 0\n10 10\n0 0\n"
        "    Pen (1,2,255)\n    Brush (2,65280,16777215)\nLine 1 2 3 4\n    Pen (1,2,0)\n");
    const SRun run = RunVelorx({"convert", table, Path("parcels.txt")});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_NE(run.out.find("The attribute OWNER has the code 60001 on the map."), std::string::npos)
        << run.out;
    const std::string map = ReadFile(Path("parcels.txt"));
    EXPECT_NE(map.find(".OBJ 44200000 SQR\n"), std::string::npos) << map;
    EXPECT_NE(map.find("60001 Ivanov\n60002 12\n"), std::string::npos) << map;
    EXPECT_NE(map.find("P207 1000\n"), std::string::npos) << map;
}

TEST_F(ConvertSxf, ScaleOfTheCommandLineCounts)
{
    Convert(kDrawing, Path("plan.txt"), {"--scale", "500"});
    EXPECT_NE(ReadFile(Path("plan.txt")).find("P207 500\n"), std::string::npos);
}

TEST_F(ConvertSxf, NothingIsMadeOfAMapThatCannotBeRead)
{
    std::string broken = kTextMap;
    broken.replace(broken.find(" DOT"), 4, " ODD");
    for (const char* target : {"map.sxf", "map.mif"}) {
        const SRun run = RunVelorx({"convert", folder.Write("broken.txt", broken), Path(target)});
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_NE(run.err.find("Некорректный формат файла"), std::string::npos) << run.err;
        EXPECT_NE(RunVelorx({"info", Path(target)}).exitCode, 0);
    }
}

TEST_F(ConvertSxf, MapOfNothingIsNotMade)
{
    const SRun run = RunVelorx(
        {"convert", folder.Write("empty.txt", ".SXF 4.0\n.DAT 0\n.END\n"), Path("map.sxf")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_NE(run.err.find("there is nothing in it that a map could hold"), std::string::npos)
        << run.err;
}

} // namespace velorx::test
