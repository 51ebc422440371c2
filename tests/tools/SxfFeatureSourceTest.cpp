// SPDX-License-Identifier: MIT
#include "tests/support/FeatureRecorder.h"
#include "tests/support/SxfBuilder.h"
#include "tests/tools/SxfMaps.h"
#include "tools/velorx/features/FeatureFormats.h"
#include "tools/velorx/features/FeatureTally.h"

namespace velorx::test {

namespace {

using namespace SxfBuilder;

/// Maps read as features.
class SxfFeatureSource : public CSxfMaps
{
protected:
    /// Reads a map of the text form at a scale of 1 to 2000.
    QString ReadText(const QByteArray& objects)
    {
        return ReadMap(".SXF 4.0\nP001 Map\nP207 2000\n.DAT "
                       + QByteArray::number(objects.count(".OBJ ")) + "\n" + objects + ".END\n");
    }

    QString ReadMap(const QByteArray& map)
    {
        const auto source = MakeFeatureSource("SXF", Write(map, "plan.txt"), {});
        CFeatureTally tally;
        const QString problem = source->Read(recorder, tally);
        tally.FillReport(report);
        return problem;
    }

    /// The rows of the report, "Line 2 as line 1".
    std::string Kinds() const
    {
        std::string out;
        for (const SConvertedKind& kind : report.kinds) {
            out += kind.name.toStdString() + ' ' + std::to_string(kind.inDrawing) + " as "
                + kind.writtenAs.toStdString() + ' ' + std::to_string(kind.written) + '\n';
        }
        return out;
    }

    static std::string Points(const CFeatureLine& line)
    {
        std::string out;
        for (const auto& p : line) {
            out += (out.empty() ? "" : " ") + QString::number(p.x).toStdString() + ','
                + QString::number(p.y).toStdString() + ',' + QString::number(p.z).toStdString();
        }
        return out;
    }

    static std::string Attributes(const SFeature& feature)
    {
        std::string out;
        for (const SFeatureAttribute& attribute :
             feature.attributes ? *feature.attributes : std::vector<SFeatureAttribute>())
        {
            out += attribute.name.toStdString() + '=' + attribute.value.typeName() + ' '
                + attribute.value.toString().toStdString() + '\n';
        }
        return out;
    }

    CFeatureRecorder recorder;
    CConversionReport report;
};

} // namespace

TEST_F(SxfFeatureSource, BeginsWithNameAndScale)
{
    EXPECT_EQ(ReadText(".OBJ 7 DOT\n1\n1 2\n"), QString());
    ASSERT_EQ(recorder.heads.size(), 1U);
    EXPECT_EQ(recorder.heads[0].name, "Map");
    EXPECT_EQ(recorder.heads[0].scale, 2000);
    EXPECT_EQ(ReadMap(".DAT 0\n"), QString());
    EXPECT_EQ(recorder.heads[1].name, "plan") << "of a map that has none, the file's";
    EXPECT_EQ(recorder.heads[1].scale, 0);
}

TEST_F(SxfFeatureSource, LineHasEastAheadOfNorth)
{
    ReadText(".OBJ 0 LIN\n.SEG roads\n2\n1 20\n3 40\n.IMG 1\n_LINE 2\nCOLOR 255\nTHICK 2000\n"
             ".OBJ 7 LIN\n2\n1 20 5\n3 40 6\n");
    ASSERT_EQ(recorder.lines.size(), 2U);
    const SLineFeature& own = recorder.lines[0];
    EXPECT_EQ(Points(own.points), "20,1,0 40,3,0");
    EXPECT_EQ(own.layer, "roads");
    EXPECT_EQ(own.code, 0);
    EXPECT_FALSE(own.is3D);
    EXPECT_EQ(own.stroke.color, 255U);
    EXPECT_EQ(own.stroke.width, 2.0) << "millimetres";
    EXPECT_EQ(own.attributes, nullptr);
    const SLineFeature& coded = recorder.lines[1];
    EXPECT_EQ(Points(coded.points), "20,1,5 40,3,6");
    EXPECT_EQ(coded.layer, "SYSTEM");
    EXPECT_EQ(coded.code, 7);
    EXPECT_TRUE(coded.is3D);
    EXPECT_EQ(Kinds(), "Line 2 as line 2\n");
}

TEST_F(SxfFeatureSource, FurtherContoursOfALineAreLines)
{
    ReadText(".OBJ 7 LIN\n.MET 1\n2\n1 20\n3 40\n2\n5 60\n7 80\n.SEM 1\n9 x\n");
    ASSERT_EQ(recorder.lines.size(), 2U);
    EXPECT_EQ(Points(recorder.lines[1].points), "60,5,0 80,7,0");
    EXPECT_EQ(recorder.lines[0].attributes, recorder.lines[1].attributes) << "shared";
    EXPECT_EQ(Kinds(), "Line 1 as line 1\nLine, further contour 1 as line 1\n");
}

TEST_F(SxfFeatureSource, SubContoursOfAnAreaAreHoles)
{
    ReadText(".OBJ 0 SQR\n.MET 1\n5\n0 0\n0 9\n9 9\n9 0\n0 0\n3\n1 1\n1 2\n2 2\n"
             ".IMG 1\n_SQUARE 1\nCOLOR 65280\n.OBJ 7 SQR\n3\n0 0\n0 9\n9 9\n");
    ASSERT_EQ(recorder.areas.size(), 2U);
    const SAreaFeature& own = recorder.areas[0];
    ASSERT_EQ(own.rings.size(), 2U);
    EXPECT_EQ(Points(own.rings[0]), "0,0,0 9,0,0 9,9,0 0,9,0") << "without the closing vertex";
    EXPECT_EQ(Points(own.rings[1]), "1,1,0 2,1,0 2,2,0");
    EXPECT_EQ(own.fill.kind, EFeatureFill::Solid);
    EXPECT_EQ(own.fill.color, 65280U);
    EXPECT_FALSE(own.stroke.isVisible);
    EXPECT_EQ(recorder.areas[1].fill.kind, EFeatureFill::None);
    EXPECT_TRUE(recorder.areas[1].stroke.isVisible);
}

TEST_F(SxfFeatureSource, LineAroundTheAreaAheadOfItIsItsOutline)
{
    const QByteArray rings = "4\n0 0\n0 9\n9 9\n0 0\n4\n1 2\n1 3\n2 3\n1 2\n";
    const QByteArray area =
        ".OBJ 0 SQR\n.SEG a\n.MET 1\n" + rings + ".IMG 1\n_SQUARE 1\nCOLOR -1\n";
    const QByteArray line =
        ".OBJ 0 LIN\n.SEG a\n.MET 1\n" + rings + ".IMG 1\n_LINE 2\nCOLOR 5\nTHICK 500\n";
    ReadText(area + line + line);
    ASSERT_EQ(recorder.areas.size(), 1U);
    EXPECT_EQ(recorder.areas[0].fill.kind, EFeatureFill::None);
    EXPECT_TRUE(recorder.areas[0].stroke.isVisible);
    EXPECT_EQ(recorder.areas[0].stroke.color, 5U);
    EXPECT_EQ(recorder.areas[0].stroke.width, 0.5);
    EXPECT_EQ(recorder.lines.size(), 2U) << "a second one is a line of two contours";
    EXPECT_EQ(Kinds(),
              "Area 1 as area 1\nLine, outline of an area 1 as area 1\nLine 1 as line 1\n"
              "Line, further contour 1 as line 1\n");
}

TEST_F(SxfFeatureSource, OtherLinesBehindAnAreaAreLines)
{
    const QByteArray rings = "4\n0 0\n0 9\n9 9\n0 0\n";
    const QByteArray area = ".OBJ 0 SQR\n.SEG a\n" + rings + ".IMG 1\n_SQUARE 1\nCOLOR -1\n";
    const QByteArray image = ".IMG 1\n_LINE 2\nCOLOR 5\nTHICK 500\n";
    ReadText(area + ".OBJ 0 LIN\n.SEG b\n" + rings + image // another layer
             + area + ".OBJ 7 LIN\n" + rings // with a code
             + area + ".OBJ 0 LIN\n.SEG a\n" + rings + ".SEM 1\n9 x\n" + image // attributes
             + area + ".OBJ 0 LIN\n.SEG a\n4\n0 0\n0 8\n9 9\n0 0\n" + image + area);
    EXPECT_EQ(recorder.areas.size(), 5U);
    EXPECT_EQ(recorder.lines.size(), 4U);
    EXPECT_FALSE(recorder.areas[0].stroke.isVisible);
}

TEST_F(SxfFeatureSource, VectorIsAPointWithADirection)
{
    ReadText(".OBJ 7 VEC\n2\n1 20\n2 21\n.OBJ 0 DOT\n1\n1 20\n.IMG 1\n_MARK 5\nSIZE 16000\n"
             ".OBJ 0 DOT\n1\n1 20\n");
    ASSERT_EQ(recorder.points.size(), 3U);
    EXPECT_DOUBLE_EQ(recorder.points[0].position.x, 20);
    EXPECT_DOUBLE_EQ(recorder.points[0].position.y, 1);
    EXPECT_DOUBLE_EQ(recorder.points[0].symbol.angle, 0.78539816339744828);
    EXPECT_EQ(recorder.points[0].symbol.size, 0);
    EXPECT_NEAR(recorder.points[1].symbol.size, 5.67, 0.01) << "a ring of two millimetres";
    EXPECT_EQ(recorder.points[2].symbol.size, 0) << "the mark of points without one";
    EXPECT_EQ(Losses(report), "1 vectors became points with a direction\n");
}

// ---- Texts ---------------------------------------------------------------------------------------

TEST_F(SxfFeatureSource, TextStandsOnTheGroundByTheScale)
{
    ReadText(".OBJ 0 TIT\n.ALG LEFT BOTTOM 0\n2\n10 20\n20 20\n>word\n.IMG 1\n_TEXT 13\nCOLOR 5\n"
             "HEIGHT 2500\nWEIGHT 700\nITALIC 1\nULINE 1\nNAME Times New\n");
    ASSERT_EQ(recorder.texts.size(), 1U);
    const STextFeature& text = recorder.texts[0];
    EXPECT_EQ(text.text, "word");
    EXPECT_DOUBLE_EQ(text.height, 5.0);
    EXPECT_DOUBLE_EQ(text.position.x, 20);
    EXPECT_DOUBLE_EQ(text.position.y, 10);
    EXPECT_DOUBLE_EQ(text.rotation, 1.5707963267948966) << "to the north";
    EXPECT_EQ(text.align, EFeatureAlign::Left);
    EXPECT_EQ(text.vertical, EFeatureVertical::Top);
    EXPECT_EQ(text.color, 5U);
    EXPECT_EQ(text.font, "Times New");
    EXPECT_TRUE(text.isBold && text.isItalic && text.isUnderlined);
    EXPECT_EQ(Losses(report), "");
}

TEST_F(SxfFeatureSource, TextIsPlacedByItsAlignment)
{
    ReadText(".OBJ 7 TIT\n.ALG CENTER 0\n2\n10 20\n10 30\n>a\n"
             ".OBJ 7 TIT\n.ALG RIGHT MIDDLE 0\n2\n10 20\n10 30\n>b\n");
    ASSERT_EQ(recorder.texts.size(), 2U);
    EXPECT_DOUBLE_EQ(recorder.texts[0].position.x, 25);
    EXPECT_DOUBLE_EQ(recorder.texts[1].position.x, 30);
    EXPECT_EQ(recorder.texts[1].vertical, EFeatureVertical::Middle);
    EXPECT_DOUBLE_EQ(recorder.texts[0].height, 3.6) << "1.8 millimetres unless told";
    EXPECT_EQ(recorder.texts[0].font, "");
}

TEST_F(SxfFeatureSource, PartsOfATextAreTextsOrLines)
{
    CRecord text;
    text.flags = kMixed | kDouble | SxfBuilder::kSemantics;
    text.code = 8;
    text.vertices = 2;
    text.subContours = 2;
    text.metric = F64s({1, 2, 1, 8}) + I8(6) + QByteArray("a\0\x1F\0\0\0\0", 7) + I16(0) + I16(2)
        + F64s({3, 2, 3, 8}) + I8(6) + QByteArray(7, '\0') + I16(0) + I16(1) + F64s({5, 2}) + I8(6)
        + QByteArray("b\0\0\0\0\0\0", 7);
    text.semantics = Semantic(4, 1, 0, I8(9));
    ReadMap(File(text));
    ASSERT_EQ(recorder.texts.size(), 2U);
    EXPECT_EQ(recorder.texts[0].text, "a");
    EXPECT_EQ(Attributes(recorder.texts[0]), "S_4=int 9\n");
    EXPECT_EQ(recorder.texts[1].text, "b");
    EXPECT_EQ(recorder.texts[1].code, 8);
    EXPECT_EQ(recorder.texts[1].position.y, 5);
    EXPECT_EQ(recorder.texts[1].rotation, 0);
    EXPECT_EQ(Attributes(recorder.texts[1]), "") << "they stand with the first part";
    EXPECT_EQ(Kinds(), "Text 1 as text 1\nText, further part 2 as text 1\n");
    EXPECT_EQ(Losses(report), "1 texts without letters or place\n");
    ReadText(".OBJ 7 MIX\n2\n10 20\n10 30\n>a\n>b\n");
    EXPECT_EQ(recorder.texts.back().text, "a\nb");
}

// ---- Attributes ----------------------------------------------------------------------------------

TEST_F(SxfFeatureSource, AttributesHaveTheirCodesAsNamesAndTheirTypes)
{
    CRecord line;
    line.flags = kLine | kDouble | SxfBuilder::kSemantics;
    line.vertices = 2;
    line.metric = F64s({1, 2, 3, 4});
    line.semantics = Semantic(1, 1, 0, I8(-5)) + Semantic(2, 2, -1, I16(25))
        + Semantic(3, 8, 0, F64(0.5)) + Semantic(9, 126, 1, QByteArray("\xC6\0", 2))
        + Semantic(9, 126, 2, QByteArray("x\0\0", 3))
        + Semantic(0x802A, 126, 1, QByteArray("L\0", 2)) + Semantic(0x8024, 4, 0, I32(7));
    ReadMap(File(line));
    ASSERT_EQ(recorder.lines.size(), 1U);
    EXPECT_EQ(Attributes(recorder.lines[0]),
              "S_1=int -5\nS_2=double 2.5\nS_3=double 0.5\nS_9=QString Ж\nS_9_2=QString x\n");
    EXPECT_EQ(recorder.lines[0].layer, "L");
    EXPECT_EQ(Losses(report), "1 links between objects and texts\n");
}

// ---- What is no feature --------------------------------------------------------------------------

TEST_F(SxfFeatureSource, WhatHasTooFewVerticesIsListed)
{
    ReadText(".OBJ 7 LIN\n1\n1 2\n.OBJ 7 SQR\n3\n1 2\n3 4\n1 2\n"
             ".OBJ 7 SQR\n.MET 1\n3\n0 0\n0 9\n9 9\n2\n1 1\n2 2\n");
    EXPECT_EQ(recorder.lines.size(), 0U);
    ASSERT_EQ(recorder.areas.size(), 1U);
    EXPECT_EQ(recorder.areas[0].rings.size(), 1U);
    EXPECT_EQ(Losses(report),
              "1 lines of a single vertex\n1 areas of less than three vertices\n"
              "1 holes of less than three vertices\n");
}

TEST_F(SxfFeatureSource, LeavesOutTheFrameOfTheWriters)
{
    ReadText(".OBJ 91000000 LIN\n5\n0 0\n9 0\n9 5\n0 5\n0 0\n.OBJ 7 DOT\n1\n1 2\n");
    EXPECT_EQ(recorder.lines.size(), 0U);
    EXPECT_EQ(recorder.points.size(), 1U);
    EXPECT_EQ(Losses(report), "1 frames around everything are left out\n");
}

TEST_F(SxfFeatureSource, TellsWhatTheReaderSaysOfAFault)
{
    EXPECT_EQ(ReadText(".OBJ 7 DOT\n1\n1 2\n.OBJ 7 ODD\n1\n1 2\n").toStdString(),
              "Некорректный формат файла");
    EXPECT_EQ(recorder.points.size(), 1U);
}

} // namespace velorx::test
