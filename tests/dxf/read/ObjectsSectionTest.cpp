// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

QByteArray Objects(const std::string& objects)
{
    return Tags("0 SECTION\n2 OBJECTS\n") + Tags(objects.c_str()) + Tags("0 ENDSEC\n0 EOF\n");
}

// What the host gets for an MLINESTYLE with these groups.
std::string MLineStyle(const std::string& groups)
{
    return Recorded(Objects("0 MLINESTYLE\n" + groups));
}

} // namespace

TEST(ObjectsSection, ReadsMultilineStyles)
{
    EXPECT_EQ(MLineStyle("2 WALL\n62 1\n71 2\n49 0.5\n62 2\n6 DASHED\n49 -0.5\n62 3\n6 DOT\n"),
              "MLineStyle name=\"WALL\" types=[\"DASHED\" \"DOT\"] colors=[#00FFFF #00FF00]\n");
}

TEST(ObjectsSection, TakesTheFirstColourForThatOfTheFill)
{
    EXPECT_EQ(MLineStyle("2 WALL\n62 256\n"), "MLineStyle name=\"WALL\"\n");
    EXPECT_EQ(MLineStyle("2 WALL\n62 1\n62 256\n6 A\n"),
              "MLineStyle name=\"WALL\" types=[\"A\"] colors=[#000000]\n");
}

TEST(ObjectsSection, DeliversAnEmptyStyleWhereTheListsDisagree)
{
    EXPECT_EQ(MLineStyle("2 WALL\n62 1\n62 2\n"), "MLineStyle\n");
    EXPECT_EQ(MLineStyle("2 WALL\n62 1\n6 A\n"), "MLineStyle\n");
    EXPECT_EQ(MLineStyle("2 WALL\n62 1\n62 2\n6 A\n6 B\n"), "MLineStyle\n");
    EXPECT_EQ(MLineStyle("2 WALL\n"), "MLineStyle\n");
    EXPECT_EQ(MLineStyle(""), "MLineStyle\n");
}

TEST(ObjectsSection, TakesNamesOfObjectsInAnyCase)
{
    EXPECT_EQ(Recorded(Objects("0 mlinestyle\n2 S\n62 1\n0 MLineStyle\n2 T\n62 1\n")),
              "MLineStyle name=\"S\"\nMLineStyle name=\"T\"\n");
}

TEST(ObjectsSection, PassesOverOtherObjects)
{
    EXPECT_EQ(Recorded(Objects("0 DICTIONARY\n2 X\n0 LINE\n10 1\n2 MLINESTYLE\n0 BLOCK\n"
                               "0 MLINESTYLE\n2 S\n62 1\n0 XRECORD\n62 9\n")),
              "MLineStyle name=\"S\"\n");
}

TEST(ObjectsSection, IsTheLastThingRead)
{
    EXPECT_EQ(Recorded(Objects("") + Entities("0 POINT\n")), "");
    // The end of the section is not there, and neither is the end of the file.
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 OBJECTS\n0 MLINESTYLE\n2 S\n62 1\n")),
              "MLineStyle name=\"S\"\n");
}

TEST(ObjectsSection, ReadsOnWhereItIsRefused)
{
    CDxfRecorder host;
    host.refused = {4};
    EXPECT_TRUE(
        ReadBytes(Objects("0 MLINESTYLE\n2 S\n62 1\n").chopped(10) + Entities("0 POINT\n"), host));
    EXPECT_EQ(host.text, "Point\n");
}

TEST(ObjectsSection, EndsAtAnEndOfBlock)
{
    EXPECT_EQ(Recorded(Objects("0 ENDBLK\n0 MLINESTYLE\n2 S\n62 1\n")), "");
}

TEST(ObjectsSection, EndsAtAnEmptyCode)
{
    const QByteArray empty("\r\n\r\n");
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 OBJECTS\n") + empty
                       + Tags("0 MLINESTYLE\n2 S\n62 1\n0 ENDSEC\n") + Entities("0 POINT\n")),
              "");
}

TEST(ObjectsSection, HoldsAnEmptyCodeInsideAnObject)
{
    const QByteArray empty("\r\n\r\n");
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 OBJECTS\n0 MLINESTYLE\n2 S\n") + empty + Tags("62 1\n")),
              "MLineStyle name=\"S\"\n");
}

TEST(ObjectsSection, DeliversStylesAlsoWithABlockLeftOpen)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 B\n0 ENDSEC\n")
                       + Objects("0 MLINESTYLE\n2 S\n62 1\n")),
              "MLineStyle name=\"S\"\n");
}
