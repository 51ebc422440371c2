// SPDX-License-Identifier: MIT
#include "tools/velorx/features/DxfStyles.h"

#include "tests/tools/RunVelorx.h"
#include "tools/velorx/formats/DxfSurvey.h"
#include "tools/velorx/formats/DxfTally.h"

#include <gtest/gtest.h>

namespace velorx::test {

TEST(DxfStyles, TypefacesAreKnownByTheirFiles)
{
    EXPECT_EQ(TypefaceFromFile("C:\\Windows\\Fonts\\TIMESBI.TTF").name, "Times New Roman");
    EXPECT_TRUE(TypefaceFromFile("timesbi.ttf").isBold);
    EXPECT_TRUE(TypefaceFromFile("timesbi.ttf").isItalic);
    EXPECT_FALSE(TypefaceFromFile("arial.ttf").isBold);
    EXPECT_EQ(TypefaceFromFile("fonts/Isocpeur.ttf").name, "Isocpeur");
}

TEST(DxfStyles, FilesOfShapesAreNoTypefaces)
{
    for (const char* file : {"txt", "simplex.shx", "Arial", ""}) {
        EXPECT_EQ(TypefaceFromFile(file).name, "") << file;
    }
}

TEST(DxfStyles, LayersAreFoundInAnyCaseAndTheFirstStands)
{
    CDxfTally counts;
    const CDxfSurvey survey(counts);
    CDxfStyles styles(survey);
    VelorExchange::dxf::CLayerDXF layer;
    layer.name = QStringLiteral("Дороги");
    layer.color = 5;
    styles.Add(layer);
    layer.color = 6;
    styles.Add(layer);
    EXPECT_EQ(styles.LayerName(QStringLiteral("ДОРОГИ")), layer.name);
    EXPECT_EQ(styles.Layer(QStringLiteral("дороги")).color, 5U);
    EXPECT_EQ(styles.LayerName("other"), "other");
    EXPECT_EQ(styles.LayerName(""), "0");
}

TEST(DxfStyles, NamesOfLayersHaveTheLettersThatTheirCodesStandFor)
{
    CDxfTally counts;
    const CDxfSurvey survey(counts);
    EXPECT_EQ(CDxfStyles(survey).LayerName("\\U+0416x"), QStringLiteral("Жx"));
}

TEST(DxfStyles, LineTypesWithoutDashesKeepTheirName)
{
    CDxfTally counts;
    const CDxfSurvey survey(counts);
    CDxfStyles styles(survey);
    EXPECT_EQ(styles.LineType("Continuous"), nullptr);
    EXPECT_EQ(styles.LineType("BYBLOCK"), nullptr);
    ASSERT_NE(styles.LineType("Fence"), nullptr);
    EXPECT_EQ(styles.LineType("Fence")->name, "Fence");
    EXPECT_EQ(styles.LineType("FENCE"), styles.LineType("Fence"));
}

TEST(DxfStyles, DashesTakeTheScaleOfTheDrawing)
{
    const CTemporaryFolder folder;
    const std::string path = folder.Write(
        "plan.dxf",
        "0\nSECTION\n2\nHEADER\n9\n$LTSCALE\n40\n2.5\n0\nENDSEC\n0\nSECTION\n2\nTABLES\n"
        "0\nTABLE\n2\nLTYPE\n0\nLTYPE\n2\nFENCE\n49\n4\n49\n-2\n0\nENDTAB\n0\nENDSEC\n0\nEOF\n");
    CDxfTally counts;
    CDxfSurvey survey(counts);
    ASSERT_TRUE(survey.Read(QString::fromStdString(path)));
    CDxfStyles styles(survey);
    ASSERT_NE(styles.LineType("Fence"), nullptr);
    EXPECT_EQ(styles.LineType("Fence")->dashes, (std::vector<double>{10, -5}));
}

} // namespace velorx::test
