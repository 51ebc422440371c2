// SPDX-License-Identifier: MIT
// `velorx info` over SXF maps of both forms.
#include "tests/support/SxfBuilder.h"
#include "tests/tools/RunVelorx.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

using SxfBuilder::CRecord;

// A line in the layer "Лес", an area with a hole in space, a point, a text; all codes are windows-1251.
QByteArray BinaryMap()
{
    using namespace SxfBuilder;
    CRecord line;
    line.flags = kLine | kDouble | SxfBuilder::kSemantics;
    line.vertices = 2;
    line.metric = F64s({1, 2, 30.5, -4});
    line.semantics = Semantic(0x802A, 126, 3, QByteArray("\xCB\xE5\xF1\0", 4))
        + Semantic(4, 2, 0, I16(120)) + Semantic(4, 2, 0, I16(121));
    CRecord area;
    area.flags = kSquare | kDouble | k3D;
    area.code = 71111110;
    area.vertices = 3;
    area.subContours = 1;
    area.metric = F64s({0, 0, 9, 0, 5, 9, 5, 0, 9}) + I16(0) + I16(2) + F64s({1, 1, 9, 2, 2, 9});
    CRecord point;
    point.flags = kPoint | kInt16;
    point.vertices = 1;
    point.metric = I16(7) + I16(80);
    CRecord text;
    text.flags = kText | kInt16;
    text.vertices = 1;
    text.metric = I16(1) + I16(1) + I8(3) + QByteArray("A\0\x18\0", 4);
    return File(line.Bytes() + area.Bytes() + point.Bytes() + text.Bytes(), 4);
}

constexpr char kTextMap[] = ".SXF 4.0\n\nP000 Map\n\nP207 2000\n\n.DAT 2\n\n"
                            ".OBJ 71111110 SQR\n.SEG Water\n.MET 1\n"
                            "3\n0 0\n0 5\n5.5 0\n2\n1 1\n2 2\n.SEM 1\n9 \xCE\xE7\xE5\xF0\xEE\n"
                            ".OBJ 0 TIT\n.ALG LEFT 0\n1\n-1 6\n>text\n.END\n";

constexpr char kNoRecords[] = ".DAT 0\n.END\n";

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

/// A folder with a map in it.
class InfoSxf : public testing::Test
{
protected:
    std::string Write(const QByteArray& bytes, const std::string& name = "map.sxf") const
    {
        return folder.Write(name, bytes.toStdString());
    }

    QJsonObject Json(const std::string& file) const
    {
        const SRun run = RunVelorx({"info", "--json", file});
        return QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
    }

    std::string Compact(const std::string& file) const
    {
        QJsonObject json = Json(file);
        json.remove("file");
        return QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString();
    }

    CTemporaryFolder folder;
};

} // namespace

TEST_F(InfoSxf, TellsABinaryMapToPeople)
{
    const std::string file = Write(BinaryMap());
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              file
                  + ": SXF map\n"
                    "  Form              binary\n"
                    "  Scale             1:1000\n"
                    "  Records declared  4\n"
                    "  Extents from      0, -4\n"
                    "  Extents to        30.5, 80\n"
                    "\n"
                    "Objects (4)\n"
                    "  Kind   Objects  Contours  Vertices\n"
                    "  Line         1         1         2\n"
                    "  Area         1         2         5\n"
                    "  Point        1         1         1\n"
                    "  Text         1         1         1\n"
                    "  All          4         5         9\n"
                    "\n"
                    "Layers (2)\n"
                    "  Name    Objects\n"
                    "  SYSTEM        3\n"
                    "  Лес           1\n"
                    "\n"
                    "Semantics (2)\n"
                    "  Code   Values\n"
                    "  4           2\n"
                    "  32810       1\n");
}

TEST_F(InfoSxf, TellsABinaryMapToPrograms)
{
    EXPECT_EQ(Compact(Write(BinaryMap())),
              R"({"callbacks":{"AddLine":1,"AddPoint":1,"AddSquare":1,"AddText":1},)"
              R"("declared_records":4,"extents":{"max":[30.5,80],"min":[0,-4]},"family":"SXF",)"
              R"("form":"binary","layers":{"SYSTEM":3,"Лес":1},"message":null,)"
              R"("objects":{"Area":1,"Line":1,"Point":1,"Text":1},"objects_of_other_layers":0,)"
              R"("result":true,"scale":1000,"semantic_types":{"126":1,"2":2},)"
              R"("semantics":{"32810":1,"4":2},"subcontours":1,"values_of_other_semantics":0,)"
              R"("vertices":{"AddLine":2,"AddPoint":1,"AddSquare":5,"AddText":1}})");
}

TEST_F(InfoSxf, TellsATextMapToPeople)
{
    const std::string file = Write(kTextMap, "map.txt");
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              file
                  + ": SXF map\n"
                    "  Form              text\n"
                    "  Scale             1:2000\n"
                    "  Records declared  2\n"
                    "  Extents from      -1, 0\n"
                    "  Extents to        5.5, 6\n"
                    "\n"
                    "Objects (2)\n"
                    "  Kind  Objects  Contours  Vertices\n"
                    "  Area        1         2         5\n"
                    "  Text        1         1         1\n"
                    "  All         2         3         6\n"
                    "\n"
                    "Layers (2)\n"
                    "  Name    Objects\n"
                    "  SYSTEM        1\n"
                    "  Water         1\n"
                    "\n"
                    "Semantics (1)\n"
                    "  Code  Values\n"
                    "  9          1\n");
}

TEST_F(InfoSxf, TellsATextMapToPrograms)
{
    EXPECT_EQ(Compact(Write(kTextMap, "map.txt")),
              R"({"callbacks":{"AddSquare":1,"AddText":1},"declared_records":2,)"
              R"("extents":{"max":[5.5,6],"min":[-1,0]},"family":"SXF","form":"text",)"
              R"("layers":{"SYSTEM":1,"Water":1},"message":null,"objects":{"Area":1,"Text":1},)"
              R"("objects_of_other_layers":0,"result":true,"scale":2000,)"
              R"("semantic_types":{"-1":1},"semantics":{"9":1},"subcontours":1,)"
              R"("values_of_other_semantics":0,"vertices":{"AddSquare":5,"AddText":1}})");
}

TEST_F(InfoSxf, TellsLayersWithoutTheZeroBehindThem)
{
    SxfBuilder::CRecord line;
    line.flags = SxfBuilder::kLine | SxfBuilder::kDouble | SxfBuilder::kSemantics;
    line.vertices = 2;
    line.metric = SxfBuilder::F64s({1, 2, 30.5, -4});
    line.semantics = SxfBuilder::Semantic(0x802A, 126, 2, QByteArray("a\0\0", 3));
    EXPECT_EQ(Json(Write(SxfBuilder::File(line))).value("layers").toObject().keys(),
              QStringList("a"));
}

TEST_F(InfoSxf, TellsLayersOfTheTextFormByTheirAttribute)
{
    const std::string file = Write(".DAT 2\n.OBJ 7 DOT\n1\n1 2\n.SEM 1\n32810 a b\n"
                                   ".OBJ 0 DOT\n.SEG a_b\n1\n1 2\n.SEM 1\n32810 a b\n.END\n",
                                   "map.txt");
    EXPECT_EQ(Json(file).value("layers").toObject().keys(), QStringList("a b"));
}

// ---- Forms and names --------------------------------------------------------------------------

TEST_F(InfoSxf, TellsTheFormByContentWhateverTheName)
{
    EXPECT_EQ(Json(Write(kTextMap, "text.SXF")).value("form").toString().toStdString(), "text");
    EXPECT_EQ(Json(Write(BinaryMap(), "map.bak")).value("form").toString().toStdString(), "binary");
    EXPECT_EQ(Json(Write(BinaryMap(), "map.txt")).value("form").toString().toStdString(), "binary");
}

TEST_F(InfoSxf, KnowsTextMapsByTheirFirstLine)
{
    for (const char* start : {".SIT 4.0\n", ".sxf 4.0\n", "\r\n  .SXF 4.0\n", ""}) {
        EXPECT_EQ(RunVelorx({"info", Write(QByteArray(start) + kNoRecords, "map.txt")}).exitCode, 0)
            << start;
    }
    const SRun other = RunVelorx({"info", Write("P000 Map\n.DAT 0\n.END\n", "map.txt")});
    EXPECT_EQ(other.exitCode, 1);
    EXPECT_TRUE(Contains(other.err, "it does not start like an SXF map")) << other.err;
}

TEST_F(InfoSxf, TellsThatThereIsNoScale)
{
    const std::string file = Write(kNoRecords);
    EXPECT_TRUE(Contains(RunVelorx({"info", file}).out, "  Scale             not told\n"));
    EXPECT_TRUE(Json(file).value("scale").isNull());
    EXPECT_TRUE(Json(file).value("extents").isNull());
}

TEST_F(InfoSxf, OpensPathsWithCyrillicLetters)
{
    const SRun run = RunVelorx({"info", Write(BinaryMap(), "Карты/Лес.sxf")});
    EXPECT_EQ(run.exitCode, 0) << run.err;
}

TEST_F(InfoSxf, LetsNoLayerSteerTheTerminal)
{
    const SRun run = RunVelorx(
        {"info", Write(".DAT 1\n.OBJ 1 DOT\n.SEG a\x1b[31mb\n1\n1 2\n.END\n", "map.txt")});
    EXPECT_TRUE(Contains(run.out, "  a\\x1b[31mb ")) << run.out;
}

// ---- Files that cannot be read ----------------------------------------------------------------

TEST_F(InfoSxf, WrongChecksumIsToldAndFails)
{
    QByteArray map = BinaryMap();
    map[200] = 1;
    const std::string file = Write(map);
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "velorx: " + file + ": Контрольная сумма файла некорртна\n");
    EXPECT_EQ(Json(file).value("message").toString().toStdString(),
              "Контрольная сумма файла некорртна");
    EXPECT_FALSE(Json(file).value("result").toBool(true));
}

TEST_F(InfoSxf, MapThatEndsInTheHeadOfARecordFailsWithoutAMessage)
{
    const std::string file =
        Write(SxfBuilder::File(SxfBuilder::I32(0x7FFF7FFF) + SxfBuilder::I32(40), 1));
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "velorx: " + file + ": the map ends inside a record\n");
    EXPECT_TRUE(Json(file).value("message").isNull());
}

TEST_F(InfoSxf, WhatWasReadAheadOfAFaultIsTold)
{
    const std::string file =
        Write(".DAT 2\n.OBJ 1 DOT\n1\n1 2\n.OBJ 1 ODD\n1\n1 2\n.END\n", "map.txt");
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Contains(run.out, "Objects (1)\n")) << run.out;
    EXPECT_EQ(run.err, "velorx: " + file + ": Некорректный формат файла\n");
}

TEST_F(InfoSxf, MapOfAnotherVersionIsAFailure)
{
    QByteArray map = BinaryMap();
    map[10] = 3;
    const std::string file = Write(map);
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err,
              "velorx: " + file
                  + ": it is a map of version 3, and only those of version 4 are read\n");
}

TEST_F(InfoSxf, FileThatStartsLikeNoMapIsAFailure)
{
    const std::string file = Write("Dear reader,\n");
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "velorx: " + file + ": it does not start like an SXF map\n");
}

TEST_F(InfoSxf, MapThatEndsAheadOfItsObjectsIsAFailure)
{
    const std::string file = Write(".SXF 4.0\n\nP000 Map\n");
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "velorx: " + file + ": the map ends ahead of its objects (.DAT)\n");
}

} // namespace velorx::test
