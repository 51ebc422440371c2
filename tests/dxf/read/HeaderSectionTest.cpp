// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"
#include "tests/support/LocaleCodec.h"

using namespace VelorExchange::test;

namespace {

// The calls for a header with these groups.
std::string Header(const std::string& tags)
{
    return Recorded(Tags(("0 SECTION\n2 HEADER\n" + tags + "0 ENDSEC\n0 EOF\n").c_str()));
}

std::string VersionOf(const std::string& value)
{
    return Header("9 $ACADVER\n1 " + value + "\n");
}

// The layer of a point, its name given as bytes, in a file of a version.
std::string LayerIn(const std::string& version, const QByteArray& layer)
{
    return Recorded(Tags(("0 SECTION\n2 HEADER\n9 $ACADVER\n1 " + version + "\n").c_str())
                    + Tags("0 ENDSEC\n") + Entities(("0 POINT\n8 " + layer + "\n").constData()));
}

} // namespace

TEST(HeaderSection, EmptyHeaderIsDelivered)
{
    EXPECT_EQ(Header(""), "Header version=1009\n");
}

TEST(HeaderSection, VersionIsTheLastFourCharacters)
{
    EXPECT_EQ(VersionOf("AC1015"), "Header version=1015\n");
    EXPECT_EQ(VersionOf("1021"), "Header version=1021\n");
    EXPECT_EQ(VersionOf("AC21021"), "Header version=1021\n");
    EXPECT_EQ(VersionOf("12"), "Header version=12\n");
    EXPECT_EQ(VersionOf("AC-123"), "Header version=-123\n");
    EXPECT_EQ(VersionOf("AC1.24"), "Header version=1009\n");
}

TEST(HeaderSection, VersionThatDoesNotConvertIs1009)
{
    EXPECT_EQ(VersionOf("AC10x5"), "Header version=1009\n");
    EXPECT_EQ(VersionOf("unknown"), "Header version=1009\n");
    EXPECT_EQ(VersionOf("AC15"), "Header version=1009\n");
    EXPECT_EQ(VersionOf(""), "Header version=1009\n");
}

TEST(HeaderSection, VersionThatDoesNotConvertReplacesAnotherOne)
{
    EXPECT_EQ(Header("9 $ACADVER\n1 AC1021\n9 $ACADVER\n1 broken\n"), "Header version=1009\n");
}

TEST(HeaderSection, VersionZeroIsANumber)
{
    EXPECT_EQ(Header("9 $ACADVER\n1 AC0000\n"), "Header\n"); // the recorder leaves out zeros
}

TEST(HeaderSection, VersionIsLookedForUpToTheNextGroup1)
{
    EXPECT_EQ(Header("9 $ACADVER\n70 5\n9 $EXTMIN\n10 7\n1 AC1018\n"), "Header version=1018\n");
}

TEST(HeaderSection, VersionIsLookedForBeyondTheSection)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n0 ENDSEC\n0 SECTION\n2 ENTITIES\n"
                            "0 TEXT\n1 AC1018\n0 ENDSEC\n0 EOF\n")),
              "Header version=1018\n");
}

TEST(HeaderSection, SearchForTheVersionPassesOverEmptyCodes)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n") + "\r\n\r\n"
                       + Tags("1 AC1018\n0 ENDSEC\n")),
              "Header version=1018\n");
}

TEST(HeaderSection, VersionMissingUpToTheEndOfTheFileEndsTheReading)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n")), "");
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n70 1\n0 ENDSEC\n0 SECTION\n"
                            "2 ENTITIES\n0 POINT\n0 ENDSEC\n0 EOF\n")),
              "");
}

TEST(HeaderSection, VersionAtTheVeryEndIsTakenWithoutACall)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1015\n")), "");
}

TEST(HeaderSection, ExtentsAreTakenInAnyOrder)
{
    EXPECT_EQ(Header("9 $EXTMIN\n10 1\n20 2\n30 3\n9 $EXTMAX\n30 6\n10 4\n20 5\n"),
              "Header version=1009 min=(1 2 3) max=(4 5 6)\n");
}

TEST(HeaderSection, ExtentsMayLackCoordinatesOrRepeatThem)
{
    EXPECT_EQ(Header("9 $EXTMIN\n20 2\n9 $EXTMAX\n10 4\n10 5\n10 6\n"),
              "Header version=1009 min=(0 2 0) max=(6 0 0)\n");
}

TEST(HeaderSection, AnotherCodeEndsAnExtent)
{
    EXPECT_EQ(Header("9 $EXTMIN\n10 1\n70 1\n20 2\n9 $EXTMAX\n010 4\n20 5\n"),
              "Header version=1009 min=(1 0 0)\n");
}

TEST(HeaderSection, TagBehindAnExtentIsLookedAt)
{
    EXPECT_EQ(Header("9 $EXTMIN\n10 1\n9 $ACADVER\n1 AC1015\n"),
              "Header version=1015 min=(1 0 0)\n");
}

TEST(HeaderSection, LastOfRepeatedExtentsStands)
{
    EXPECT_EQ(Header("9 $EXTMIN\n10 1\n20 2\n9 $EXTMIN\n10 3\n"),
              "Header version=1009 min=(3 2 0)\n");
}

TEST(HeaderSection, ExtentThatDoesNotConvertIsZero)
{
    EXPECT_EQ(Header("9 $EXTMIN\n10 5\n10 x\n20 1e20\n"), "Header version=1009 min=(0 1e+20 0)\n");
}

TEST(HeaderSection, VariablesAreComparedWithoutRegardToCase)
{
    EXPECT_EQ(Header("9 $acadver\n1 AC1015\n9 $ExtMin\n10 1\n9 $extmax\n10 2\n"),
              "Header version=1015 min=(1 0 0) max=(2 0 0)\n");
}

TEST(HeaderSection, VariablesCountOnlyWithTheirCode)
{
    EXPECT_EQ(Header("1 $ACADVER\n1 AC1015\n2 $EXTMIN\n10 1\n3 $EXTMAX\n10 2\n"),
              "Header version=1009\n");
}

TEST(HeaderSection, OtherVariablesAreNotRead)
{
    EXPECT_EQ(Header("9 $DWGCODEPAGE\n3 ANSI_1251\n9 $INSBASE\n10 1\n20 2\n9 $LIMMIN\n10 3\n"),
              "Header version=1009\n");
}

TEST(HeaderSection, EmptyCodeEndsTheSectionWithoutACall)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 HEADER\n9 $EXTMIN\n10 1\n") + "\r\n\r\n"
                       + Tags("0 ENDSEC\n") + Entities("0 POINT\n")),
              "Point\n");
}

TEST(HeaderSection, EndOfFileIsTrueWithoutACall)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 HEADER\n")), "");
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 HEADER\n9 $EXTMIN\n10 1\n")), "");
}

TEST(HeaderSection, SecondHeaderKeepsTheVersionInForce)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1021\n9 $EXTMIN\n10 1\n0 ENDSEC\n"
                            "0 SECTION\n2 HEADER\n9 $EXTMAX\n10 2\n0 ENDSEC\n0 EOF\n")),
              "Header version=1021 min=(1 0 0)\nHeader version=1021 max=(2 0 0)\n");
}

TEST(HeaderSection, VersionDecidesTheDecodingFromThereOn)
{
    const CLocaleCodec codec("windows-1251");
    EXPECT_EQ(LayerIn("AC1015", "\xC0"), "Header version=1015\nPoint layer=\"\u0410\"\n");
    EXPECT_EQ(LayerIn("AC1006", "\x80"), "Header version=1006\nPoint layer=\"\u0410\"\n");
    EXPECT_EQ(LayerIn("AC1021", "\xD0\x90"), "Header version=1021\nPoint layer=\"\u0410\"\n");
    EXPECT_EQ(LayerIn("AC1018", "\xD0\x90"), "Header version=1018\nPoint layer=\"\u0420\u0452\"\n");
}

TEST(HeaderSection, FileWithoutAHeaderIsDecodedByTheLocalCodec)
{
    const CLocaleCodec codec("IBM866");
    EXPECT_EQ(Recorded(Entities("0 POINT\n8 \x80\n")), "Point layer=\"\u0410\"\n");
}

TEST(HeaderSection, LaterHeaderChangesTheDecodingOfWhatFollows)
{
    const CLocaleCodec codec("windows-1251");
    QByteArray first = Entities("0 POINT\n8 \xC0\n");
    first.chop(Tags("0 EOF\n").size());
    EXPECT_EQ(Recorded(first) + LayerIn("AC1021", "\xD0\x90"),
              Recorded(first + Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1021\n0 ENDSEC\n")
                       + Entities("0 POINT\n8 \xD0\x90\n")));
}

TEST(HeaderSection, CodePageOfTheFileIsNotLookedAt)
{
    const CLocaleCodec codec("windows-1251");
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 HEADER\n9 $ACADVER\n1 AC1015\n9 $DWGCODEPAGE\n3 dos866\n"
                            "0 ENDSEC\n")
                       + Entities("0 POINT\n8 \xC0\n")),
              "Header version=1015\nPoint layer=\"\u0410\"\n");
}
