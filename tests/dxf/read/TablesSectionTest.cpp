// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Colour.h"

#include "tests/support/DxfRecorder.h"
#include "tests/support/LocaleCodec.h"

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

QByteArray Section(const std::string& tags)
{
    return Tags("0 SECTION\n2 TABLES\n") + Tags(tags.c_str()) + Tags("0 ENDSEC\n0 EOF\n");
}

std::string Tables(const std::string& tags)
{
    return Recorded(Section(tags));
}

// The layer "A" with further groups.
std::string Layer(const std::string& tags)
{
    return Tables("0 LAYER\n2 A\n" + tags);
}

} // namespace

TEST(TablesSection, RecordsAreKnownByGroup0Alone)
{
    EXPECT_EQ(Tables("0 TABLE\n2 LAYER\n70 2\n0 LAYER\n2 A\n0 STYLE\n2 S\n0 LTYPE\n2 L\n0 ENDTAB\n"
                     "0 LAYER\n2 B\n"),
              "Layer name=\"A\"\nTextStyle name=\"S\" font=\"Arial\"\nLineStyle name=\"L\"\n"
              "Layer name=\"B\"\n");
}

TEST(TablesSection, NamesOfRecordsAreTakenInAnyCase)
{
    EXPECT_EQ(Tables("0 layer\n2 A\n0 Style\n2 S\n0 LType\n2 L\n0 endsec\n0 LAYER\n2 B\n"),
              "Layer name=\"A\"\nTextStyle name=\"S\" font=\"Arial\"\nLineStyle name=\"L\"\n");
}

TEST(TablesSection, OtherRecordsArePassedOver)
{
    EXPECT_EQ(Tables("0 VPORT\n2 *Active\n0 DIMSTYLE\n2 D\n0 APPID\n2 P\n2 LAYER\n"), "");
}

TEST(TablesSection, EmptyCodeEndsTheSection)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 TABLES\n0 X\n") + "\r\n\r\n"
                       + Tags("0 LAYER\n2 A\n0 ENDSEC\n") + Entities("0 POINT\n")),
              "Point\n");
}

TEST(TablesSection, LayerWithoutFurtherGroupsHasItsDefaults)
{
    EXPECT_EQ(Layer(""), "Layer name=\"A\"\n"); // CONTINUOUS, colour 0, visible, unlocked
}

TEST(TablesSection, LayerWithoutANameIsDropped)
{
    EXPECT_EQ(Tables("0 LAYER\n62 1\n0 LAYER\n2\n62 1\n0 LAYER\n2 A\n"), "Layer name=\"A\"\n");
}

TEST(TablesSection, LayerTakesItsLineType)
{
    EXPECT_EQ(Layer("6 DASHED\n"), "Layer name=\"A\" type=\"DASHED\"\n");
    EXPECT_EQ(Layer("6\n"), "Layer name=\"A\" type=\"\"\n"); // empty is not absent
}

TEST(TablesSection, LayerTakesItsLineWeight)
{
    EXPECT_EQ(Layer("370 25\n"), "Layer name=\"A\" weight=25\n");
    EXPECT_EQ(Layer("370 -3\n"), "Layer name=\"A\" weight=-3\n");
}

TEST(TablesSection, LayerWithANegativeColourIsNotVisible)
{
    EXPECT_EQ(Layer("62 -7\n"), "Layer name=\"A\" visible=false\n");
    EXPECT_EQ(Layer("62 -1\n"), "Layer name=\"A\" visible=false\n");
    EXPECT_EQ(Layer("62 0\n"), "Layer name=\"A\"\n");
}

TEST(TablesSection, ColourOfALayerIsThatOfItsNumber)
{
    for (const int index : {-7, -2, -1, 1, 3, 7, 100, 255, 256, 257, 1000}) {
        class CColor final : public IDXFReader
        {
        public:
            bool OnLayer(const CLayerDXF& layer) override
            {
                color = layer.color;
                return true;
            }
            quint32 color = 12345;
        };
        CColor host;
        ReadBytes(Section("0 LAYER\n2 A\n62 " + std::to_string(index) + "\n"), host);
        EXPECT_EQ(host.color, index == -2 ? 0 : NumColACAD2RGB(index)) << index;
    }
}

TEST(TablesSection, TrueColourOfALayerNeedsANumberBesideIt)
{
    EXPECT_EQ(Layer("62 1\n420 1122867\n"), "Layer name=\"A\" color=#332211\n"); // 0x112233
    EXPECT_EQ(Layer("420 1122867\n"), "Layer name=\"A\"\n");
}

TEST(TablesSection, LayerWithoutAColourTakesThatOfTheLayerItLiesOn)
{
    EXPECT_EQ(Tables("0 LAYER\n2 A\n62 1\n0 LAYER\n2 B\n8 a\n0 LAYER\n2 C\n8 D\n"),
              "Layer name=\"A\" color=#0000FF\nLayer name=\"B\" color=#0000FF\nLayer name=\"C\"\n");
}

TEST(TablesSection, EveryWordOfFlagsTellsWhetherTheLayerIsVisibleAndUnlocked)
{
    for (int flags = 0; flags < 256; ++flags) {
        std::string expected = "Layer name=\"A\"";
        expected += (flags & 3) != 0 ? " visible=false" : "";
        expected += (flags & 4) != 0 ? " unlocked=false" : "";
        ASSERT_EQ(Layer("70 " + std::to_string(flags) + "\n"), expected + '\n');
    }
}

TEST(TablesSection, RepeatedFlagsDoNotConvert)
{
    EXPECT_EQ(Layer("70 1\n70 4\n"), "Layer name=\"A\"\n");
}

TEST(TablesSection, TextStyleKeepsTheDefaultsOfAllButNameAndFont)
{
    EXPECT_EQ(Tables("0 STYLE\n2 S\n3 txt.shx\n40 2.5\n41 0.8\n50 15\n71 2\n4 big.shx\n"),
              "TextStyle name=\"S\" font=\"txt.shx\"\n");
}

TEST(TablesSection, TextStyleWithoutAFontGetsArial)
{
    EXPECT_EQ(Tables("0 STYLE\n2 S\n"), "TextStyle name=\"S\" font=\"Arial\"\n");
}

TEST(TablesSection, TextStyleWithAnEmptyFontKeepsIt)
{
    EXPECT_EQ(Tables("0 STYLE\n2 S\n3\n"), "TextStyle name=\"S\"\n");
}

TEST(TablesSection, TextStyleWithoutANameIsDropped)
{
    EXPECT_EQ(Tables("0 STYLE\n3 txt\n0 STYLE\n2\n3 txt\n"), "");
}

TEST(TablesSection, LineTypeCarriesItsNameAlone)
{
    EXPECT_EQ(Tables("0 LTYPE\n2 DASHED\n3 __ __\n73 2\n49 1\n49 -1\n"),
              "LineStyle name=\"DASHED\"\n");
}

TEST(TablesSection, LineTypeWithoutANameIsDelivered)
{
    EXPECT_EQ(Tables("0 LTYPE\n3 x\n"), "LineStyle name=\"CONTINUOUS\"\n");
    EXPECT_EQ(Tables("0 LTYPE\n2\n"), "LineStyle\n"); // empty is not absent
}

TEST(TablesSection, RecordsDoNotLookAtPaperSpace)
{
    EXPECT_EQ(Tables("0 LAYER\n2 A\n67 1\n0 STYLE\n2 S\n67 1\n0 LTYPE\n2 L\n67 1\n"),
              "Layer name=\"A\"\nTextStyle name=\"S\" font=\"Arial\"\nLineStyle name=\"L\"\n");
}

TEST(TablesSection, RecordAtTheEndOfTheFileIsDelivered)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 TABLES\n0 LTYPE\n2 L\n")), "LineStyle name=\"L\"\n");
}

TEST(TablesSection, CallbackMayChangeTheCodecForTheNextRecord)
{
    class CChanger final : public IDXFReader
    {
    public:
        bool OnLayer(const CLayerDXF& layer) override
        {
            names += layer.name.toStdString() + ' ';
            QTextCodec::setCodecForLocale(QTextCodec::codecForName("IBM866"));
            return true;
        }
        std::string names;
    };
    const CLocaleCodec codec("windows-1251");
    CChanger host;
    ReadBytes(Section("0 LAYER\n2 \xE0\n0 LAYER\n2 \xE0\n"), host);
    EXPECT_EQ(host.names, "\u0430 \u0440 ");
}
