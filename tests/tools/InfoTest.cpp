// SPDX-License-Identifier: MIT
// `velorx info` over drawings: what it prints, and what it says about files that it cannot read.
#include "tests/tools/RunVelorx.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>

namespace velorx::test {

namespace {

constexpr char kPlan[] = "data/survey-plan.dxf";

std::string Section(const std::string& name, const std::string& content)
{
    return "0\nSECTION\n2\n" + name + "\n" + content + "0\nENDSEC\n";
}

std::string Layer(const std::string& name, const std::string& groups = "62\n7\n")
{
    return "0\nLAYER\n2\n" + name + "\n" + groups;
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

/// A folder with one drawing in it, and `velorx info` over that drawing.
class Info : public testing::Test
{
protected:
    std::string Write(const std::string& content, const std::string& name = "drawing.dxf") const
    {
        return folder.Write(name, content);
    }

    SRun Run(const std::string& content) const { return RunVelorx({"info", Write(content)}); }

    QJsonObject Json(const std::string& content) const
    {
        const SRun run = RunVelorx({"info", "--json", Write(content)});
        return QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
    }

    CTemporaryFolder folder;
};

QString Compact(const QJsonValue& value)
{
    return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
}

} // namespace

// ---- The demo drawing -------------------------------------------------------------------------

TEST_F(Info, TellsThePlanToPeople)
{
    const SRun run = RunVelorx({"info", kPlan});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, ReadFile(VELORX_GOLDEN "/survey-plan.txt"));
}

TEST_F(Info, TellsThePlanToPrograms)
{
    const SRun run = RunVelorx({"info", "--json", kPlan});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, ReadFile(VELORX_GOLDEN "/survey-plan.json"));
}

// ---- Counts -----------------------------------------------------------------------------------

TEST_F(Info, CountsEveryKindOfEntityByItsOperation)
{
    std::string entities = "0\nARC\n50\n10\n51\n20\n";
    for (const char* name :
         {"3DFACE", "ATTDEF", "CIRCLE", "ELLIPSE", "HATCH", "INSERT", "LINE", "LWPOLYLINE", "MLINE",
          "MTEXT", "POINT", "POLYLINE", "RAY", "SOLID", "SPLINE", "TEXT", "XLINE"})
    {
        entities += std::string("0\n") + name + "\n8\n0\n";
    }
    entities += "0\nIMAGE\n340\nA1\n";
    const QJsonObject json = Json(Section("ENTITIES", entities)
                                  + Section("OBJECTS", "0\nIMAGEDEF\n5\nA1\n1\nphoto.jpg\n"));
    EXPECT_EQ(Compact(json.value("callbacks")).toStdString(),
              R"({"On3DFace":1,"OnArc":2,"OnEllipse":1,"OnHatch":1,"OnImage":1,"OnInsert":1,)"
              R"("OnLWPolyline":1,"OnLine":1,"OnMLine":1,"OnMText":1,"OnPoint":1,"OnPolyline":1,)"
              R"("OnRay":1,"OnSolid":1,"OnSpline":1,"OnText":1,"OnXLine":1})");
    EXPECT_EQ(Compact(json.value("entities")).toStdString(),
              R"({"3DFACE":1,"ARC":1,"CIRCLE":1,"ELLIPSE":1,"HATCH":1,"IMAGE":1,"INSERT":1,)"
              R"("LINE":1,"LWPOLYLINE":1,"MLINE":1,"MTEXT":1,"POINT":1,"POLYLINE":1,"RAY":1,)"
              R"("SOLID":1,"SPLINE":1,"TEXT":1,"XLINE":1})");
}

TEST_F(Info, CountsEntitiesInsideBlocksByThemselves)
{
    const QJsonObject json =
        Json(Section("BLOCKS",
                     "0\nBLOCK\n2\nA\n0\nLINE\n8\n0\n0\nCIRCLE\n40\n1\n0\nARC\n50\n1\n51\n2\n"
                     "0\nENDBLK\n0\nBLOCK\n2\nB\n0\nATTDEF\n2\nT\n0\nLINE\n8\n0\n0\nENDBLK\n"));
    EXPECT_EQ(Compact(json.value("block_entities")).toStdString(),
              R"({"ARC":1,"ATTDEF":1,"CIRCLE":1,"LINE":2})");
    EXPECT_EQ(Compact(json.value("callbacks")).toStdString(), R"({"OnBlock":2})");
    EXPECT_EQ(Compact(json.value("entities")).toStdString(), "{}");
}

TEST_F(Info, CountsAttributesOfInsertsInTheDrawingAndInBlocks)
{
    const std::string insert = "0\nINSERT\n66\n1\n2\nB\n0\nATTRIB\n2\nT\n0\nSEQEND\n";
    const QJsonObject json = Json(Section("BLOCKS", "0\nBLOCK\n2\nA\n" + insert + "0\nENDBLK\n")
                                  + Section("ENTITIES", insert + "0\nINSERT\n2\nB\n" + insert));
    EXPECT_EQ(json.value("insert_attributes").toInt(), 3);
}

TEST_F(Info, CountsTablesAndObjects)
{
    const QJsonObject json = Json(
        Section("HEADER", "9\n$ACADVER\n1\nAC1015\n")
        + Section("TABLES",
                  Layer("A") + Layer("B") + "0\nSTYLE\n2\nS\n3\nfont.shx\n0\nLTYPE\n2\nDASHED\n")
        + Section("OBJECTS", "0\nMLINESTYLE\n2\nM\n62\n256\n62\n1\n6\nDASHED\n"));
    EXPECT_EQ(Compact(json.value("callbacks")).toStdString(),
              R"({"OnHeader":1,"OnLayer":2,"OnLineStyle":1,"OnMLineStyle":1,"OnTextStyle":1})");
    EXPECT_EQ(json.value("version").toInt(), 1015);
}

TEST_F(Info, KeepsTheFirstTenThousandNamesOfALongList)
{
    std::string layers;
    for (int i = 0; i < 10002; ++i) {
        layers += Layer("L" + std::to_string(i));
    }
    const SRun run = Run(Section("TABLES", layers));
    EXPECT_TRUE(Contains(run.out, "Layers (10002)\n"));
    EXPECT_TRUE(Contains(run.out, "  L9999 "));
    EXPECT_FALSE(Contains(run.out, "  L10000 "));
    EXPECT_TRUE(Contains(run.out, "  ... and 2 more\n"));
}

// ---- Layers and header ------------------------------------------------------------------------

TEST_F(Info, TellsColourAndStateOfLayers)
{
    const SRun run = Run(Section("TABLES",
                                 Layer("red", "62\n1\n") + Layer("off", "62\n-3\n")
                                     + Layer("locked", "62\n5\n70\n4\n6\nDASHED\n")
                                     + Layer("true", "62\n1\n420\n1193046\n")));
    EXPECT_TRUE(Contains(run.out,
                         "  Name    Colour   Visible  Locked  Line type\n"
                         "  red     #FF0000  yes      no      CONTINUOUS\n"
                         "  off     #000000  no       no      CONTINUOUS\n"
                         "  locked  #0000FF  yes      yes     DASHED\n"
                         "  true    #123456  yes      no      CONTINUOUS\n"))
        << run.out;
}

TEST_F(Info, TellsTheExtentsAsDelivered)
{
    const SRun run = Run(Section("HEADER",
                                 "9\n$EXTMIN\n10\n1.5\n20\n-2\n30\n0\n"
                                 "9\n$EXTMAX\n10\n1e20\n20\nnonsense\n30\n3\n"));
    EXPECT_TRUE(Contains(run.out,
                         "  Version       AC1009\n"
                         "  Extents from  1.5, -2, 0\n"
                         "  Extents to    1e+20, 0, 3\n"))
        << run.out;
}

TEST_F(Info, TakesTheVersionOfAHeaderThatDoesNotEnd)
{
    const std::string content = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1027\n";
    EXPECT_TRUE(Contains(Run(content).out, "  Version   AC1027 (no complete header)\n"));
    EXPECT_EQ(Json(content).value("version").toInt(), 1027);
    EXPECT_EQ(Compact(Json(content).value("callbacks")).toStdString(), "{}");
}

TEST_F(Info, SaysSoWhereNoHeaderWasRead)
{
    const std::string content = Section("ENTITIES", "0\nLINE\n8\n0\n");
    EXPECT_TRUE(Contains(Run(content).out, "  Version   AC1009 (no complete header)\n"));
    EXPECT_TRUE(Json(content).value("extents").isNull());
    EXPECT_EQ(Json(content).value("version").toInt(), 1009);
}

TEST_F(Info, LetsNoFileSteerTheTerminal)
{
    const SRun run = Run(Section("TABLES", Layer("a\x1b[31mb")));
    EXPECT_TRUE(Contains(run.out, "  a\\x1b[31mb  ")) << run.out;
}

// ---- Text and paths ---------------------------------------------------------------------------

TEST_F(Info, DecodesTextByTheCodePage)
{
    const std::string file = Write(Section("TABLES", Layer("\xC7\xE4\xE0\xED\xE8\xFF")));
    EXPECT_TRUE(Contains(RunVelorx({"info", file}).out, "  Здания  "));
    const std::string dos = Write(Section("TABLES", Layer("\x87\xA4\xA0\xAD\xA8\xEF")), "dos.dxf");
    EXPECT_TRUE(Contains(RunVelorx({"info", dos, "--codepage", "IBM866"}).out, "  Здания  "));
}

TEST_F(Info, DecodesNewDrawingsAsUtf8WhateverTheCodePage)
{
    const SRun run =
        Run(Section("HEADER", "9\n$ACADVER\n1\nAC1021\n") + Section("TABLES", Layer("Здания")));
    EXPECT_TRUE(Contains(run.out, "  Здания  ")) << run.out;
}

TEST_F(Info, OpensPathsWithCyrillicLettersInEveryCodePage)
{
    const std::string file = Write(Section("TABLES", Layer("A")), "Изыскания/Генплан Ижевск.dxf");
    for (const char* codePage : {"windows-1251", "IBM866", "KOI8-R", "UTF-8", "Shift_JIS"}) {
        const SRun run = RunVelorx({"info", "--codepage", codePage, file});
        EXPECT_EQ(run.exitCode, 0) << codePage << ": " << run.err;
        EXPECT_TRUE(Contains(run.out, "Изыскания/Генплан Ижевск.dxf: DXF drawing\n")) << codePage;
    }
}

TEST_F(Info, OpensPathsThatAreNoUtf8)
{
    const std::string file = Write(Section("TABLES", Layer("A")), "\xC8\x98\xFF.dxf");
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_TRUE(Contains(run.out, file + ": DXF drawing\n"));
}

TEST_F(Info, NamesTheFileInJsonAsUtf8)
{
    const std::string file = Write(Section("TABLES", Layer("A")), "Ижевск.dxf");
    const SRun run = RunVelorx({"info", "--json", file});
    const QJsonObject json = QJsonDocument::fromJson(QByteArray::fromStdString(run.out)).object();
    EXPECT_EQ(json.value("file").toString().toStdString(), file);
    EXPECT_EQ(json.value("family").toString().toStdString(), "DXF");
}

// ---- Files that cannot be read ----------------------------------------------------------------

TEST_F(Info, MissingFileIsAFailure)
{
    const SRun run = RunVelorx({"info", "Нет такого.dxf"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "velorx: cannot open Нет такого.dxf: No such file or directory\n");
}

TEST_F(Info, FolderIsAFailure)
{
    const SRun run = RunVelorx({"info", folder.path});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "velorx: cannot read " + folder.path + ": it is a folder, not a file\n");
}

TEST_F(Info, UnreadableFileIsAFailure)
{
    if (geteuid() == 0) {
        GTEST_SKIP() << "root may read every file";
    }
    const std::string file = Write(Section("TABLES", Layer("A")));
    std::filesystem::permissions(file, std::filesystem::perms::none);
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "velorx: cannot open " + file + ": Permission denied\n");
}

TEST_F(Info, LinkToItselfIsAFailure)
{
    const std::string file = folder.path + "/loop.dxf";
    std::filesystem::create_symlink(file, file);
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Contains(run.err, "velorx: cannot open " + file + ": ")) << run.err;
}

TEST_F(Info, FileOfNoKnownKindIsAFailure)
{
    const std::string file = Write("Dear reader,\n", "letter.doc");
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(Contains(run.err, file + ": it is of no kind that velorx reads (*.dxf")) << run.err;
}

TEST_F(Info, PlainTextIsToldToBeNoMap)
{
    const std::string file = Write("Dear reader,\n", "letter.txt");
    const SRun run = RunVelorx({"info", file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, "velorx: cannot read " + file + ": it does not start like an SXF map\n");
}

TEST_F(Info, BinaryDrawingIsToldTheWayOut)
{
    const SRun run = Run("AutoCAD Binary DXF\r\n\x1a");
    EXPECT_TRUE(Contains(run.out, "a binary one, which is not read: save it as text\n")) << run.out;
}

TEST_F(Info, EmptyFileIsToldToBeNoDrawing)
{
    const SRun run = Run("");
    EXPECT_TRUE(Contains(run.out, "  Content  none: it does not start like a text drawing\n"))
        << run.out;
}

TEST_F(Info, MissingEndMarkIsTold)
{
    const std::string drawing = Section("TABLES", Layer("A"));
    EXPECT_TRUE(
        Contains(Run(drawing).out, "  End mark  missing: the file may have been cut short"));
    EXPECT_FALSE(Contains(Run(drawing + "0\nEOF\n").out, "End mark"));
    EXPECT_FALSE(Json(drawing).value("end_mark").toBool(true));
    EXPECT_TRUE(Json(drawing + "0\nEOF\n").value("end_mark").toBool());
}

TEST_F(Info, RowsOfATableAreReadByTheTable)
{
    const std::string file = Write("1,2\n", "wells.mid");
    EXPECT_EQ(RunVelorx({"info", file}).err,
              "velorx: cannot read " + file
                  + ": it holds the rows of a table, which is read by its .mif\n");
}

TEST_F(Info, KnowsDrawingsByContentWhereTheNameTellsNothing)
{
    const std::string file = Write(Section("ENTITIES", "0\nLINE\n8\n0\n"), "drawing.bak");
    EXPECT_EQ(RunVelorx({"info", file}).exitCode, 0);
}

TEST_F(Info, KnowsExtensionsInEitherCase)
{
    EXPECT_EQ(RunVelorx({"info", Write("", "EMPTY.DXF")}).exitCode, 0);
}

TEST_F(Info, DrawingThatEndsInsideABlockIsToldAndFails)
{
    const std::string content = Section("TABLES", Layer("A"))
        + "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\n"
          "B\n0\nLINE\n8\n0\n";
    const SRun run = Run(content);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Contains(run.out, "Layers (1)\n")) << run.out;
    EXPECT_TRUE(Contains(run.err, "drawing.dxf: the drawing ends inside a block\n")) << run.err;
    EXPECT_FALSE(Json(content).value("result").toBool(true));
}

} // namespace velorx::test
