// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfSurvey.h"

#include "tests/support/DxfRecorder.h"
#include "tests/support/LocaleCodec.h"
#include "tests/support/TextFile.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

/// The first look over a drawing in the form of `Tags`.
class CLook
{
public:
    explicit CLook(const char* groups)
    {
        const VelorExchange::test::CLocaleCodec codec("windows-1251");
        const VelorExchange::test::CTextFile file(VelorExchange::test::Tags(groups));
        EXPECT_TRUE(survey.Read(file.Path()));
    }

    CDxfSurvey* operator->() { return &survey; }

private:
    CDxfTally tally;
    CDxfSurvey survey{tally};
};

} // namespace

TEST(DxfSurvey, MissingFileIsFalse)
{
    CDxfTally tally;
    EXPECT_FALSE(CDxfSurvey(tally).Read(QStringLiteral("/nowhere/drawing.dxf")));
}

TEST(DxfSurvey, FindsBasePointsInAnyCase)
{
    CLook look("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 Well\n10 1\n20 2\n30 3\n0 ENDBLK\n0 BLOCK\n2 "
               "Pole\n0 ENDBLK\n"
               "0 ENDSEC\n");
    EXPECT_EQ(look->BasePoint("WELL").z, 3);
    EXPECT_EQ(look->BasePoint("Pole").x, 0);
    EXPECT_EQ(look->BasePoint("Tree").x, 0);
}

TEST(DxfSurvey, FindsFilesOfOutsideBlocks)
{
    CLook look("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 Base\n70 4\n1 base.dwg\n0 ENDBLK\n"
               "0 BLOCK\n2 Own\n70 0\n1 notes\n0 ENDBLK\n0 ENDSEC\n");
    EXPECT_EQ(look->OutsideFile("base"), "base.dwg");
    EXPECT_EQ(look->OutsideFile("Own"), QString());
}

TEST(DxfSurvey, FindsTextStylesWithTheirFontsOfTheSystem)
{
    CLook look("0 SECTION\n2 TABLES\n0 STYLE\n2 Plan\n40 2.5\n41 0.9\n50 15\n3 arialbi.ttf\n1001 "
               "ACAD\n1000 Arial\n"
               "1071 50331682\n0 STYLE\n2 Bare\n0 ENDSEC\n");
    const auto* style = look->TextStyle("PLAN");
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(style->height, 2.5);
    EXPECT_EQ(style->widthFactor, 0.9);
    EXPECT_EQ(style->obliqueAngle, 15);
    EXPECT_EQ(style->fontFile, "arialbi.ttf");
    EXPECT_EQ(style->faceName, "Arial");
    EXPECT_TRUE(style->bold && style->italic);
    EXPECT_EQ(look->TextStyle("Bare")->fontFile, "Arial"); // as the reader has it
    EXPECT_EQ(look->TextStyle("None"), nullptr);
}

TEST(DxfSurvey, FindsGroupsOfMultilineStylesBetweenTheirMarkerAndForeignData)
{
    CLook look("0 SECTION\n2 OBJECTS\n0 MLINESTYLE\n5 A1\n102 {ACAD_REACTORS\n330 B\n102 }\n"
               "100 AcDbMlineStyle\n2 Road\n70 0\n49 0.5\n6 DOT\n1001 APP\n1000 x\n0 ENDSEC\n");
    const CMLineStyleGroups* groups = look->MLineStyle("ROAD");
    ASSERT_NE(groups, nullptr);
    EXPECT_EQ(*groups, (CMLineStyleGroups{{70, "0"}, {49, "0.5"}, {6, "DOT"}}));
    EXPECT_EQ(look->MLineStyleNames(), QStringList{"road"});
}

TEST(DxfSurvey, FirstMultilineOfAStyleTellsItsScale)
{
    CLook look("0 SECTION\n2 ENTITIES\n0 MLINE\n2 Road\n40 3\n0 MLINE\n2 Road\n40 4\n0 ENDSEC\n");
    EXPECT_EQ(look->MLineScale("road"), 3);
    EXPECT_EQ(look->MLineScale("other"), 1);
}

TEST(DxfSurvey, MultilinesOfPaperSpaceTellNoScale)
{
    CLook look("0 SECTION\n2 ENTITIES\n0 MLINE\n2 Road\n40 3\n67 1\n0 ENDSEC\n");
    EXPECT_EQ(look->MLineScale("Road"), 1);
}

TEST(DxfSurvey, HeaderTellsTheFactorOnDashes)
{
    EXPECT_EQ(CLook("0 SECTION\n2 HEADER\n9 $LTSCALE\n40 2.5\n0 ENDSEC\n")->LineTypeScale(), 2.5);
    EXPECT_EQ(CLook("0 SECTION\n2 HEADER\n9 $LTSCALE\n40 0\n0 ENDSEC\n")->LineTypeScale(), 1);
    EXPECT_EQ(CLook("0 SECTION\n2 HEADER\n9 $CELTSCALE\n40 5\n0 ENDSEC\n")->LineTypeScale(), 1);
}

TEST(DxfSurvey, NamesInTheHeaderDoNotEndIt)
{
    CLook look("0 SECTION\n2 HEADER\n9 $DIMSTYLE\n2 TABLES\n9 $LTSCALE\n40 2.5\n0 ENDSEC\n");
    EXPECT_EQ(look->LineTypeScale(), 2.5);
}

TEST(DxfSurvey, TellsWhetherMoreStandsBehindTheObjects)
{
    const char* const objects = "0 SECTION\n2 OBJECTS\n0 ENDSEC\n";
    const std::string entities = "0 SECTION\n2 ENTITIES\n0 ENDSEC\n";
    const std::string preview = "0 SECTION\n2 THUMBNAILIMAGE\n0 ENDSEC\n";
    EXPECT_TRUE(CLook((objects + entities).c_str())->AreObjectsAhead());
    EXPECT_FALSE(CLook((entities + objects).c_str())->AreObjectsAhead());
    EXPECT_FALSE(CLook((entities + objects + preview).c_str())->AreObjectsAhead());
}

TEST(DxfSurvey, VersionDecidesTheDecoding)
{
    const char* const style = "0 SECTION\n2 TABLES\n0 STYLE\n2 \xD0\x90\n3 txt\n0 ENDSEC\n";
    const auto look = [style](const char* version) {
        return CLook(
            (std::string("0 SECTION\n2 HEADER\n9 $ACADVER\n1 ") + version + "\n0 ENDSEC\n" + style)
                .c_str());
    };
    EXPECT_NE(look("AC1021")->TextStyle(QStringLiteral("А")), nullptr);
    EXPECT_NE(look("AC1015")->TextStyle(QStringLiteral("Рђ")), nullptr);
    EXPECT_NE(look("AC1006")->TextStyle(QStringLiteral("╨Р")), nullptr);
}

TEST(DxfSurvey, AttributeDefinitionsStandInTheirOrder)
{
    CLook look("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 Well\n0 ATTDEF\n2 A\n1 x\n40 1\n0 LINE\n0 "
               "ATTDEF\n2 B\n1 y\n"
               "0 ENDBLK\n0 BLOCK\n2 WELL\n0 ATTDEF\n2 C\n0 ENDBLK\n0 ENDSEC\n");
    EXPECT_EQ(look->AttDefs().Find("well", 0)->text.tag, "A");
    EXPECT_EQ(look->AttDefs().Find("Well", 1)->text.text, "y");
    EXPECT_EQ(look->AttDefs().Find("Well", 2), nullptr); // the second of a name does not count
    EXPECT_EQ(look->AttDefs().Find("Pole", 0), nullptr);
}

TEST(DxfSurvey, AnythingAtAllIsLookedOver)
{
    for (const char* groups :
         {"", "0\n", "0 SECTION\n", "0 SECTION\n2\n0 EOF\n", "0 ENDSEC\n0 ENDBLK\n",
          "0 SECTION\n2 BLOCKS\n0 BLOCK\n0 BLOCK\n0 VERTEX\n0 ATTRIB\n",
          "0 SECTION\n2 TABLES\n0 LTYPE\n0 STYLE\n0 LAYER\n0 ENDTAB\n", "9 $ACADVER\n1 AC1015\n"})
    {
        EXPECT_EQ(CLook(groups)->LineTypeScale(), 1) << groups;
    }
}

} // namespace velorx::test
