// SPDX-License-Identifier: MIT
// The loop over entities, and what all of them have in common.
#include "VelorExchange/dxf/write/Colour.h"

#include "tests/support/DxfRecorder.h"
#include "tests/support/LocaleCodec.h"

#include <array>

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

// The calls for entities behind a table with these layers.
std::string Drawn(const std::string& layers, const std::string& entities)
{
    CDxfRecorder recorder;
    ReadBytes(Tags("0 SECTION\n2 TABLES\n") + Tags(layers.c_str()) + Tags("0 ENDSEC\n")
                  + Entities(entities.c_str()),
              recorder);
    std::string text;
    for (const QByteArray& line : QByteArray::fromStdString(recorder.text).split('\n')) {
        if (!line.startsWith("Layer") && !line.isEmpty()) {
            text += line.toStdString() + '\n';
        }
    }
    return text;
}

std::string Drawn(const std::string& entities)
{
    return Drawn("", entities);
}

constexpr char kRedLayer[] = "0 LAYER\n2 Red\n62 1\n6 DASHED\n";

// The colour that a point with these groups comes with.
quint32 ColorOf(const QByteArray& bytes)
{
    class CHost final : public IDXFReader
    {
    public:
        bool OnPoint(const CPointDXF& point) override
        {
            color = point.color;
            return true;
        }
        bool OnBlock(const CBlockDXF& block) override
        {
            color = boost::variant2::get<CPointDXF>(block.entities.at(0)).color;
            return true;
        }
        quint32 color = 12345;
    };
    CHost host;
    ReadBytes(bytes, host);
    return host.color;
}

quint32 ColorOfPoint(const std::string& tags)
{
    return ColorOf(Entities(("0 POINT\n" + tags).c_str()));
}

quint32 ColorOfPointInBlock(const std::string& tags)
{
    return ColorOf(Block(("0 POINT\n" + tags).c_str()));
}

struct CName
{
    const char* inFile;
    const char* inCalls;
};

constexpr CName kNames[] = {
    {"POINT", "Point"},
    {"XLINE", "XLine"},
    {"LINE", "Line"},
    {"TEXT", "Text"},
    {"SPLINE", "Spline"},
    {"POLYLINE", "Polyline"},
    {"MLINE", "MLine"},
    {"MTEXT", "MText"},
    {"ARC", "Arc"},
    {"CIRCLE", "Arc"},
    {"SOLID", "Solid"},
    {"HATCH", "Hatch"},
    {"3DFACE", "3DFace"},
    {"RAY", "Ray"},
    {"ELLIPSE", "Ellipse"},
    {"INSERT", "Insert"},
    {"LWPOLYLINE", "LWPolyline"},
};

std::string FirstWord(const std::string& text)
{
    return text.substr(0, text.find_first_of(" \n"));
}

} // namespace

class EntityNames : public testing::TestWithParam<CName>
{
};

TEST_P(EntityNames, HaveTheirParser)
{
    const auto [inFile, inCalls] = GetParam();
    EXPECT_EQ(FirstWord(Drawn("0 " + std::string(inFile) + "\n8 A\n")), inCalls);
}

TEST_P(EntityNames, AreTakenInAnyCase)
{
    const QByteArray lower = QByteArray(GetParam().inFile).toLower();
    QByteArray mixed = lower;
    mixed[1] = GetParam().inFile[1];
    EXPECT_EQ(FirstWord(Drawn("0 " + lower.toStdString() + "\n8 A\n")), GetParam().inCalls);
    EXPECT_EQ(FirstWord(Drawn("0 " + mixed.toStdString() + "\n8 A\n")), GetParam().inCalls);
}

TEST_P(EntityNames, CountOnlyWhole)
{
    const std::string name = GetParam().inFile;
    EXPECT_EQ(Drawn("0 " + name + "X\n8 A\n0 Z" + name + "\n8 A\n"), "");
    EXPECT_EQ(Drawn("0 " + name.substr(0, 2) + "\n8 A\n"), "");
    EXPECT_EQ(Drawn("1 " + name + "\n8 A\n"), "");
}

TEST_P(EntityNames, AreDroppedInPaperSpace)
{
    const std::string name = GetParam().inFile;
    EXPECT_EQ(Drawn("0 " + name + "\n8 A\n67 1\n10 5\n0 POINT\n"), "Point\n");
    EXPECT_EQ(Recorded(Block(("0 " + name + "\n8 A\n67 1\n10 5\n").c_str())), "Block name=\"B\"\n");
}

TEST_P(EntityNames, GoIntoTheOpenBlock)
{
    const std::string name = GetParam().inFile;
    const std::string text = Recorded(Block(("0 " + name + "\n8 A\n").c_str()));
    EXPECT_EQ(text.substr(0, text.find('\n')), "Block name=\"B\"");
    EXPECT_EQ(FirstWord(text.substr(text.find('\n') + 3)), GetParam().inCalls);
}

TEST_P(EntityNames, AreDeliveredAtTheEndOfTheFileToo)
{
    const std::string name = GetParam().inFile;
    const QByteArray bytes = Tags(("0 SECTION\n2 ENTITIES\n0 " + name + "\n8 A\n").c_str());
    const std::string whole = name == "HATCH" ? "" : GetParam().inCalls; // a hatch needs its end
    EXPECT_EQ(FirstWord(Recorded(bytes)), whole);
}

INSTANTIATE_TEST_SUITE_P(EntityLoop, EntityNames, testing::ValuesIn(kNames),
                         [](const auto& name) { return std::string(name.param.inFile); });

TEST(EntityLoop, ImageHasItsParser)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 image\n340 F\n11 1\n22 1\n0 ENDSEC\n"
                            "0 SECTION\n2 OBJECTS\n0 IMAGEDEF\n5 F\n1 a.png\n0 ENDSEC\n")),
              "Image path=\"a.png\" name=\"a\"\n");
}

TEST(EntityLoop, AttributeDefinitionsCountInBlocksAlone)
{
    EXPECT_EQ(Drawn("0 ATTDEF\n2 T\n1 V\n"), "");
    EXPECT_EQ(Recorded(Block("0 attdef\n2 T\n1 V\n67 1\n")),
              "Block name=\"B\"\n  AttDef tag=\"T\" value=\"V\"\n");
}

TEST(EntityLoop, UnknownEntitiesArePassedOverInSilence)
{
    EXPECT_EQ(Drawn("0 DIMENSION\n8 A\n10 1\n1 POINT\n0 VIEWPORT\n67 0\n0 POINT\n10 2\n"),
              "Point point=(2 0 0)\n");
}

TEST(EntityLoop, TagsBeforeTheFirstEntityArePassedOver)
{
    EXPECT_EQ(Drawn("8 A\n10 1\n0 POINT\n10 2\n"), "Point point=(2 0 0)\n");
}

TEST(EntityLoop, EndOfABlockEndsTheEntities)
{
    // The section is over with it, and the tags up to the next one are passed over.
    EXPECT_EQ(Drawn("0 POINT\n0 ENDBLK\n0 LINE\n"), "Point\n");
}

TEST(EntityLoop, EndOfTheSectionEndsABlock)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 B\n0 POINT\n0 ENDSEC\n0 EOF\n")), "");
}

TEST(EntityLoop, EndsAreTakenInAnyCase)
{
    EXPECT_EQ(Drawn("0 POINT\n0 endBlk\n0 LINE\n"), "Point\n");
    EXPECT_EQ(Drawn("0 POINT\n0 endsec\n0 LINE\n"), "Point\n");
}

TEST(EntityLoop, OtherGroup67IsModelSpace)
{
    EXPECT_EQ(Drawn("0 POINT\n67 0\n0 POINT\n67 2\n0 POINT\n67 -1\n0 POINT\n67 x\n0 POINT\n67 01\n"
                    "0 POINT\n67 1\n67 1\n"),
              "Point\nPoint\nPoint\nPoint\nPoint\n");
}

TEST(EntityLoop, EntityBehindOneInPaperSpaceIsRead)
{
    EXPECT_EQ(Drawn("0 LINE\n67 1\n10 1\n0 LINE\n10 2\n"), "Line start=(2 0 0)\n");
}

TEST(EntityLoop, AbsentColourOnAnUnknownLayerIs0)
{
    EXPECT_EQ(Drawn("0 LINE\n0 LINE\n8 Unknown\n"), "Line\nLine layer=\"Unknown\"\n");
    EXPECT_EQ(Drawn(kRedLayer, "0 LINE\n8 Unknown\n"), "Line layer=\"Unknown\"\n");
}

TEST(EntityLoop, EntitiesBeforeTheTablesSeeNoLayers)
{
    QByteArray entities = Entities("0 LINE\n8 Red\n");
    entities.chop(Tags("0 EOF\n").size());
    EXPECT_EQ(Recorded(entities + Tags("0 SECTION\n2 TABLES\n") + Tags(kRedLayer)
                       + Tags("0 ENDSEC\n") + Entities("0 LINE\n8 Red\n")),
              "Line layer=\"Red\"\nLayer name=\"Red\" type=\"DASHED\" color=#0000FF\n"
              "Line layer=\"Red\" color=#0000FF style=\"DASHED\"\n");
}

TEST(EntityLoop, EntitiesOfRefusedTablesSeeNoLayers)
{
    CDxfRecorder recorder;
    recorder.refused = {1};
    ReadBytes(Tags("0 SECTION\n2 TABLES\n") + Tags(kRedLayer) + Tags("0 ENDSEC\n")
                  + Entities("0 LINE\n8 Red\n"),
              recorder);
    EXPECT_EQ(recorder.text, "Line layer=\"Red\"\n");
}

TEST(EntityLoop, ColourOfNumber0IsByBlockInsideOfABlockAlone)
{
    EXPECT_EQ(ColorOfPoint("62 0\n"), 0U);
    EXPECT_EQ(ColorOfPointInBlock("62 0\n"), 0xFFFFFFFFU);
}

TEST(EntityLoop, ColourOfNumber0DoesNotLookAtTrueColourOrLayer)
{
    EXPECT_EQ(ColorOfPoint("62 0\n420 255\n"), 0U);
    EXPECT_EQ(ColorOfPointInBlock("62 0\n420 255\n"), 0xFFFFFFFFU);
    EXPECT_EQ(Drawn(kRedLayer, "0 POINT\n8 Red\n62 0\n"), "Point layer=\"Red\"\n");
}

TEST(EntityLoop, ColourThatDoesNotConvertIsNumber0)
{
    EXPECT_EQ(ColorOfPointInBlock("62 red\n"), 0xFFFFFFFFU);
    EXPECT_EQ(ColorOfPointInBlock("62\n"), 0xFFFFFFFFU);
    EXPECT_EQ(ColorOfPointInBlock("62 1\n62 2\n"), 0xFFFFFFFFU);
}

TEST(EntityLoop, EveryNumberGivesTheColourOfTheTable)
{
    for (int index = -300; index <= 300; ++index) {
        if (index == 0 || index == -2) {
            continue;
        }
        ASSERT_EQ(ColorOfPoint("62 " + std::to_string(index) + "\n"), NumColACAD2RGB(index))
            << index;
    }
    EXPECT_EQ(ColorOfPoint("62 1\n"), 0x000000FFU);
    EXPECT_EQ(ColorOfPoint("62 5\n"), 0x00FF0000U);
    EXPECT_EQ(ColorOfPoint("62 256\n"), 0U);
}

TEST(EntityLoop, NumberBeyondTheTableDoesNotFallBackToTheLayer)
{
    EXPECT_EQ(Drawn(kRedLayer, "0 POINT\n8 Red\n62 256\n0 POINT\n8 Red\n62 -1\n"),
              "Point layer=\"Red\"\nPoint layer=\"Red\"\n");
}

TEST(EntityLoop, TrueColourBesideANumberIsSwapped)
{
    EXPECT_EQ(ColorOfPoint("62 1\n420 1122867\n"), 0x00332211U); // 0x112233
    EXPECT_EQ(ColorOfPoint("62 256\n420 16711680\n"), 0x000000FFU); // 0xFF0000
    EXPECT_EQ(ColorOfPoint("62 -5\n420 255\n"), 0x00FF0000U);
    EXPECT_EQ(ColorOfPoint("420 65280\n62 1\n"), 0x0000FF00U); // in either order
}

TEST(EntityLoop, TrueColourBitsAbove24AreDropped)
{
    EXPECT_EQ(ColorOfPoint("62 1\n420 2131765811\n"), 0x00332A10U); // 0x7F102A33
    EXPECT_EQ(ColorOfPoint("62 1\n420 -1\n"), 0x00FFFFFFU);
}

TEST(EntityLoop, TrueColourWithoutANumberIsNotLookedAt)
{
    EXPECT_EQ(ColorOfPoint("420 255\n"), 0U);
    EXPECT_EQ(Drawn(kRedLayer, "0 POINT\n8 Red\n420 65280\n"),
              "Point layer=\"Red\" color=#0000FF\n");
}

TEST(EntityLoop, EmptyTrueColourIsNone)
{
    EXPECT_EQ(ColorOfPoint("62 1\n420\n"), 0x000000FFU);
}

TEST(EntityLoop, TrueColourThatDoesNotConvertIsBlack)
{
    EXPECT_EQ(ColorOfPoint("62 1\n420 x\n"), 0U);
    EXPECT_EQ(ColorOfPoint("62 1\n420 255\n420 255\n"), 0U);
}

TEST(EntityLoop, AbsentColourIsThatOfTheLayer)
{
    EXPECT_EQ(Drawn(kRedLayer, "0 POINT\n8 Red\n"), "Point layer=\"Red\" color=#0000FF\n");
}

TEST(EntityLoop, NumberMinus2CountsAsAbsent)
{
    EXPECT_EQ(Drawn(kRedLayer, "0 POINT\n8 Red\n62 -2\n420 65280\n"),
              "Point layer=\"Red\" color=#0000FF\n");
}

TEST(EntityLoop, LayersAreFoundInAnyCaseAndTheFirstOfAName)
{
    EXPECT_EQ(Drawn(std::string(kRedLayer) + "0 LAYER\n2 RED\n62 5\n", "0 LINE\n8 rED\n"),
              "Line layer=\"rED\" color=#0000FF style=\"DASHED\"\n");
    const CLocaleCodec codec("UTF-8");
    EXPECT_EQ(Drawn(u8"0 LAYER\n2 Дом\n62 1\n", u8"0 POINT\n8 дОМ\n"),
              u8"Point layer=\"дОМ\" color=#0000FF\n");
}

TEST(EntityLoop, LongLayerNamesAreFoundToo)
{
    const std::string name(200, 'x');
    const std::string other(200, 'X');
    EXPECT_EQ(Drawn("0 LAYER\n2 " + name + "\n62 1\n6 DASHED\n", "0 LINE\n8 " + other + "\n"),
              "Line layer=\"" + other + "\" color=#0000FF style=\"DASHED\"\n");
}

TEST(EntityLoop, RepeatedLayerGroupsAreOneName)
{
    EXPECT_EQ(Drawn("0 LAYER\n2 A;B\n62 1\n", "0 POINT\n8 A\n8 B\n"),
              "Point layer=\"A;B\" color=#0000FF\n");
}

TEST(EntityLoop, InvisibleLayerGivesItsColour)
{
    EXPECT_EQ(Drawn("0 LAYER\n2 A\n62 -1\n420 255\n70 1\n", "0 POINT\n8 A\n"),
              "Point layer=\"A\" color=#FF0000\n");
}

TEST(EntityLoop, LayerByBlockGivesColour0)
{
    // A layer can only come to be so while a block is left open.
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 B\n0 ENDSEC\n"
                            "0 SECTION\n2 TABLES\n0 LAYER\n2 A\n62 0\n0 ENDSEC\n"
                            "0 SECTION\n2 ENTITIES\n0 POINT\n8 A\n0 ENDSEC\n"
                            "0 SECTION\n2 BLOCKS\n0 ENDBLK\n0 ENDSEC\n")),
              "Layer name=\"A\" color=#FFFFFFFF\nBlock name=\"B\"\n  Point layer=\"A\"\n");
}

TEST(EntityLoop, OwnLineTypeStandsAsItIs)
{
    EXPECT_EQ(Drawn(kRedLayer,
                    "0 LINE\n8 Red\n6 DOT\n0 LINE\n8 Red\n6 ByBlock\n0 LINE\n8 Red\n6\n"
                    "0 LINE\n6 CONTINUOUS\n8 Red\n"),
              "Line layer=\"Red\" color=#0000FF style=\"DOT\"\n"
              "Line layer=\"Red\" color=#0000FF style=\"ByBlock\"\n"
              "Line layer=\"Red\" color=#0000FF style=\"\"\n"
              "Line layer=\"Red\" color=#0000FF\n");
}

TEST(EntityLoop, LineTypeByLayerIsTakenInAnyCase)
{
    EXPECT_EQ(Drawn(kRedLayer, "0 LINE\n8 red\n6 ByLayer\n62 7\n0 LINE\n8 red\n6 BYLAYER\n62 7\n"),
              "Line layer=\"red\" style=\"DASHED\"\nLine layer=\"red\" style=\"DASHED\"\n");
}

TEST(EntityLoop, LineTypeByLayerWithoutALayerIsContinuous)
{
    EXPECT_EQ(Drawn(kRedLayer, "0 LINE\n8 Other\n0 LINE\n8 Other\n6 BYLAYER\n0 LINE\n"),
              "Line layer=\"Other\"\nLine layer=\"Other\"\nLine\n");
}

TEST(EntityLoop, LayerWhoseLineTypeIsByLayerIsContinuous)
{
    EXPECT_EQ(
        Drawn("0 LAYER\n2 A\n6 ByLayer\n0 LAYER\n2 B\n6 BYLAYER\n", "0 LINE\n8 A\n0 LINE\n8 B\n"),
        "Line layer=\"A\"\nLine layer=\"B\"\n");
}

TEST(EntityLoop, LayerWhoseLineTypeIsByBlockOrEmptyGivesIt)
{
    EXPECT_EQ(Drawn("0 LAYER\n2 A\n6 BYBLOCK\n0 LAYER\n2 B\n6\n", "0 LINE\n8 A\n0 LINE\n8 B\n"),
              "Line layer=\"A\" style=\"BYBLOCK\"\nLine layer=\"B\" style=\"\"\n");
}

TEST(EntityLoop, LineTypeIsReadForTheEntitiesThatHaveOne)
{
    for (const char* name : {"ARC", "CIRCLE", "ELLIPSE", "INSERT", "LINE", "LWPOLYLINE", "POLYLINE",
                             "RAY", "SPLINE", "XLINE"})
    {
        const std::string text = Drawn("0 " + std::string(name) + "\n6 DOT\n");
        EXPECT_NE(text.find("style=\"DOT\""), std::string::npos) << text;
    }
}

TEST(EntityLoop, LineTypeIsNotReadForTheOthers)
{
    for (const char* name : {"POINT", "TEXT", "MTEXT", "SOLID", "3DFACE", "HATCH", "MLINE"}) {
        const std::string text = Drawn(kRedLayer, "0 " + std::string(name) + "\n6 DOT\n8 Red\n");
        EXPECT_EQ(text.find("DOT"), std::string::npos) << text;
        EXPECT_EQ(text.find("DASHED"), std::string::npos) << text;
    }
}

TEST(EntityLoop, LayerDefinedAgainLaterDoesNotChangeWhatANameMeans)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 TABLES\n0 LAYER\n2 A\n62 1\n0 ENDSEC\n"
                            "0 SECTION\n2 ENTITIES\n0 POINT\n8 A\n0 POINT\n8 B\n0 ENDSEC\n"
                            "0 SECTION\n2 TABLES\n0 LAYER\n2 A\n62 5\n0 LAYER\n2 B\n62 5\n"
                            "0 ENDSEC\n0 SECTION\n2 ENTITIES\n0 POINT\n8 A\n0 POINT\n8 B\n"
                            "0 ENDSEC\n")),
              "Layer name=\"A\" color=#0000FF\n"
              "Point layer=\"A\" color=#0000FF\nPoint layer=\"B\"\n"
              "Layer name=\"A\" color=#FF0000\nLayer name=\"B\" color=#FF0000\n"
              "Point layer=\"A\" color=#0000FF\nPoint layer=\"B\" color=#FF0000\n");
}

TEST(EntityLoop, NameReadBeforeTheCodecChangesIsDecodedAnew)
{
    class CChanger final : public IDXFReader
    {
    public:
        bool OnPoint(const CPointDXF& point) override
        {
            layers += point.layer.toStdString() + ' ';
            QTextCodec::setCodecForLocale(QTextCodec::codecForName("IBM866"));
            return true;
        }
        std::string layers;
    };
    const CLocaleCodec codec("windows-1251");
    CChanger host;
    ReadBytes(Entities("0 POINT\n8 \xE0\n0 POINT\n8 \xE0\n"), host);
    EXPECT_EQ(host.layers, "\u0430 \u0440 ");
}

TEST(EntityLoop, ManyLayersKeepTheirColoursApart)
{
    std::string layers;
    std::string entities;
    std::string expected;
    constexpr std::array<const char*, 3> kHex = {"#0000FF", "#00FFFF", "#00FF00"}; // 1, 2, 3
    constexpr std::size_t kLayers = 3000;
    for (std::size_t i = 0; i < kLayers; ++i) {
        const std::string name = "layer " + std::to_string(i);
        layers += "0 LAYER\n2 " + name + "\n62 " + std::to_string(i % 3 + 1) + "\n";
        entities += "0 POINT\n8 " + name + "\n0 POINT\n8 layer 7\n";
        expected += "Point layer=\"" + name + "\" color=" + kHex[i % 3]
            + "\nPoint layer=\"layer 7\" color=#00FFFF\n";
    }
    EXPECT_TRUE(Drawn(layers, entities) == expected);
}
