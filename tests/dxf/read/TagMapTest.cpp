// SPDX-License-Identifier: MIT
#include "TagMapTest.h"

using namespace VelorExchange;
using namespace VelorExchange::test;

TEST(TagMap, KeepsTheValueOfACode)
{
    const CMappedObject object = Gathered("8 WALLS\n62 5\n");
    EXPECT_EQ(object.Value(8), "WALLS");
    EXPECT_EQ(object.Value(62), "5");
}

TEST(TagMap, AbsentCodeGivesTheDefault)
{
    CMappedObject object = Gathered("8 A\n");
    EXPECT_EQ(object->Value(6, QStringLiteral("BYLAYER")), QStringLiteral("BYLAYER"));
    EXPECT_EQ(object->Value(6), QString());
    EXPECT_EQ(object->Int(62, -2), -2);
    EXPECT_EQ(object->Int(62), 0);
    EXPECT_EQ(object->Double(41, 1.0), 1.0);
    EXPECT_EQ(object->Double(41), 0.0);
    EXPECT_FALSE(object->Has(6));
}

TEST(TagMap, EmptyValueIsNotAbsent)
{
    CMappedObject object = Gathered("6\n62\n41\n");
    EXPECT_EQ(object->Value(6, QStringLiteral("BYLAYER")), QString());
    EXPECT_EQ(object->Int(62, -2), 0);
    EXPECT_EQ(object->Double(41, 1.0), 0.0);
    EXPECT_TRUE(object->Has(6));
}

TEST(TagMap, ValuesOfOneCodeAreJoined)
{
    const CMappedObject object = Gathered("3 one\n8 A\n3 two\n3 three\n");
    EXPECT_EQ(object.Value(3), "one;two;three");
    EXPECT_EQ(object.Value(8), "A");
}

TEST(TagMap, ValueReplacesAnEmptyOne)
{
    EXPECT_EQ(Gathered("3\n3\n3 two\n3 three\n").Value(3), "two;three");
}

TEST(TagMap, EmptyValueBehindAnotherLeavesItsJoint)
{
    EXPECT_EQ(Gathered("3 one\n3\n3 three\n3\n").Value(3), "one;;three;");
}

TEST(TagMap, OverwritingDropsAllEarlierValues)
{
    CMappedObject object("72 1\n72 2\n0 END\n72 3\n72 4\n");
    object->ReadObject();
    const CDXFTag third = object.Input().ReadTag();
    object->Store(third, true);
    EXPECT_EQ(object.Value(72), "3");
    object->Store(object.Input().ReadTag());
    EXPECT_EQ(object.Value(72), "3;4");
}

TEST(TagMap, StoringAppendsUnlessToldToOverwrite)
{
    CMappedObject object("72 1\n72 2\n");
    object->Store(object.Input().ReadTag());
    object->Store(object.Input().ReadTag());
    EXPECT_EQ(object.Value(72), "1;2");
}

TEST(TagMap, ClearingForgetsEverything)
{
    CMappedObject object = Gathered("8 A\n62 5\n");
    EXPECT_FALSE(object->IsEmpty());
    object->Clear();
    EXPECT_TRUE(object->IsEmpty());
    EXPECT_FALSE(object->Has(8));
    EXPECT_EQ(object.Split(62), "");
}

TEST(TagMap, CodesThatNoParserAsksForAreNotKept)
{
    CMappedObject object = Gathered("1072 x\n9999 x\n12345 x\nname x\n-5 x\n");
    EXPECT_TRUE(object->IsEmpty());
}

TEST(TagMap, HighestCodeIsKept)
{
    EXPECT_EQ(Gathered("1071 x\n").Value(1071), "x");
}

TEST(TagMap, NumbersConvert)
{
    CMappedObject object = Gathered("62 -7\n40 2.5\n41 1e3\n70 +4\n");
    EXPECT_EQ(object->Int(62), -7);
    EXPECT_EQ(object->Double(40), 2.5);
    EXPECT_EQ(object->Double(41), 1000.0);
    EXPECT_EQ(object->Int(70), 4);
}

TEST(TagMap, NumberThatDoesNotConvertIsZero)
{
    CMappedObject object = Gathered("62 red\n63 2.0\n40 1,5\n64 99999999999\n65 0x10\n");
    EXPECT_EQ(object->Int(62, 9), 0);
    EXPECT_EQ(object->Int(63, 9), 0);
    EXPECT_EQ(object->Double(40, 9.0), 0.0);
    EXPECT_EQ(object->Int(64, 9), 0);
    EXPECT_EQ(object->Int(65, 9), 0);
}

TEST(TagMap, JoinedNumbersDoNotConvert)
{
    CMappedObject object = Gathered("62 1\n62 2\n40 1.5\n40 2.5\n43 1.5;2.5\n71 1;2\n");
    EXPECT_EQ(object->Int(62, 9), 0);
    EXPECT_EQ(object->Double(40, 9.0), 0.0);
    EXPECT_EQ(object->Double(43, 9.0), 0.0);
    EXPECT_EQ(object->Int(71, 9), 0);
}

TEST(TagMap, NumberWithAnEmptyOneBehindItDoesNotConvert)
{
    CMappedObject object = Gathered("62 1\n62\n40 1.5\n40\n");
    EXPECT_EQ(object->Int(62, 9), 0);
    EXPECT_EQ(object->Double(40, 9.0), 0.0);
}

TEST(TagMap, SplitTakesValuesApart)
{
    const CMappedObject object = Gathered("10 1.5\n10 -2\n10 x\n");
    EXPECT_EQ(object.Split(10), "1.5|-2|x");
    EXPECT_EQ(object.Doubles(10), "1.5 -2 0 ");
}

TEST(TagMap, SplitSkipsEmptyParts)
{
    const CMappedObject object = Gathered("10\n10 1\n10\n10 ;\n10 2;;3\n10 ;4;\n");
    EXPECT_EQ(object.Split(10), "1|2|3|4");
    EXPECT_EQ(object.Doubles(10), "1 2 3 4 ");
}

TEST(TagMap, SplitOfAbsentCodeIsEmpty)
{
    const CMappedObject object = Gathered("8 A\n");
    EXPECT_EQ(object.Split(10), "");
    EXPECT_EQ(object.Doubles(10), "");
}

TEST(TagMap, PartsKeepTheirBlanks)
{
    const CMappedObject object = Gathered("10 1 ; 2\n");
    EXPECT_EQ(object.Split(10), "1 | 2");
    EXPECT_EQ(object.Doubles(10), "1 2 ");
}

TEST(TagMap, ByteOrderMarkBehindAJointStays)
{
    // Decoding drops the mark at the start of a line, and nowhere else.
    const CMappedObject object = Gathered("40 1;\xEF\xBB\xBF"
                                          "2\n41 \xEF\xBB\xBF"
                                          "1;2\n");
    EXPECT_EQ(object.Split(40),
              "1|\xEF\xBB\xBF"
              "2");
    EXPECT_EQ(object.Doubles(40), "1 0 ");
    EXPECT_EQ(object.Split(41), "1|2");
    EXPECT_EQ(object.Doubles(41), "1 2 ");
}

TEST(TagMap, PointsAreTakenFromTheirCodes)
{
    CMappedObject object = Gathered("10 1\n20 2\n30 3\n11 4\n");
    const CPoint2D inPlan = object->Point2D(10, 20);
    const CPoint3D inSpace = object->Point3D(10, 20, 30);
    EXPECT_EQ(inPlan.x, 1.0);
    EXPECT_EQ(inPlan.y, 2.0);
    EXPECT_EQ(inSpace.z, 3.0);
    EXPECT_EQ(object->Point2D(11, 21).x, 4.0);
    EXPECT_EQ(object->Point2D(11, 21).y, 0.0);
    EXPECT_EQ(object->Point3D(12, 22, 32).z, 0.0);
}

TEST(TagMap, ExtrusionIsZeroWhereItIsAbsent)
{
    CMappedObject with = Gathered("210 0.1\n220 0.2\n230 -1\n");
    CMappedObject without = Gathered("8 A\n");
    EXPECT_EQ(with->Extrusion().x, 0.1);
    EXPECT_EQ(with->Extrusion().y, 0.2);
    EXPECT_EQ(with->Extrusion().z, -1.0);
    EXPECT_EQ(without->Extrusion().x, 0.0);
    EXPECT_EQ(without->Extrusion().z, 0.0);
}

TEST(TagMap, SingleIsAValueThatCameOnce)
{
    CMappedObject object = Gathered("8 A\n6 X\n6 Y\n7\n");
    dxf::CTextSpan span{};
    EXPECT_TRUE(object->Single(8, span));
    EXPECT_EQ(object.Input().Bytes(span), "A");
    EXPECT_TRUE(object->Single(7, span));
    EXPECT_FALSE(object->Single(6, span));
    EXPECT_FALSE(object->Single(5, span));
}

TEST(TagMap, ObjectEndsBeforeTheNextZero)
{
    CMappedObject object("8 A\n62 5\n0 LINE\n8 B\n");
    EXPECT_EQ(object.Shown(object->ReadObject()), "0 LINE");
    EXPECT_EQ(object.Value(8), "A");
    EXPECT_FALSE(object->Has(0));
    EXPECT_EQ(object.Shown(object.Input().ReadTag()), "8 B");
}

TEST(TagMap, NewObjectForgetsTheOneBefore)
{
    CMappedObject object("8 A\n62 5\n0 LINE\n8 B\n0 END\n");
    object->ReadObject();
    object->ReadObject();
    EXPECT_EQ(object.Value(8), "B");
    EXPECT_FALSE(object->Has(62));
}

TEST(TagMap, ObjectAtTheEndOfTheFileGivesItsLastTagStoredToo)
{
    CMappedObject object("8 A\n62 5\n");
    EXPECT_EQ(object.Shown(object->ReadObject()), "62 5");
    EXPECT_EQ(object.Value(62), "5");
}

TEST(TagMap, ObjectBehindTheEndIsAnEmptyTag)
{
    CMappedObject object("");
    EXPECT_EQ(object->ReadObject().code, CDXFTag::kNoCode);
    EXPECT_TRUE(object->IsEmpty());
}

TEST(TagMap, EmptyCodeInsideAnObjectIsOneMoreTag)
{
    CMappedObject object(Tags("8 A\n") + "\r\nlost\r\n" + Tags("62 5\n0 END\n"));
    EXPECT_EQ(object.Shown(object->ReadObject()), "0 END");
    EXPECT_EQ(object.Value(8), "A");
    EXPECT_EQ(object.Value(62), "5");
}

TEST(TagMap, ReadUntilStopsAtAnyOfItsCodes)
{
    CMappedObject object("8 A\n91 2\n62 5\n0 END\n");
    EXPECT_EQ(object.Shown(object->ReadUntil({0, 91})), "91 2");
    EXPECT_FALSE(object->Has(91));
    EXPECT_EQ(object.Shown(object->ReadUntil({0, 91})), "0 END");
    EXPECT_EQ(object.Value(8), "A"); // not cleared
    EXPECT_EQ(object.Value(62), "5");
}

TEST(TagMap, ReadUntilAtTheEndGivesTheLastTag)
{
    CMappedObject object("8 A\n");
    EXPECT_EQ(object.Shown(object->ReadUntil({0})), "8 A");
    EXPECT_EQ(object.Shown(object->ReadUntil({0})), "-1 ");
    EXPECT_EQ(object.Value(8), "A");
}

TEST(TagMap, ReadWhileStopsAtTheFirstOtherCode)
{
    CMappedObject object("10 1\n20 2\n10 3\n120 4\n20 5\n");
    EXPECT_EQ(object.Shown(object->ReadWhile({10, 20})), "120 4"); // exact, not a part of the code
    EXPECT_EQ(object.Value(10), "1;3");
    EXPECT_EQ(object.Value(20), "2");
    EXPECT_FALSE(object->Has(120));
}

TEST(TagMap, ReadWhileAtTheEndGivesAnEmptyTag)
{
    CMappedObject object("10 1\n");
    EXPECT_EQ(object->ReadWhile({10, 20}).code, CDXFTag::kNoCode);
    EXPECT_EQ(object.Value(10), "1");
}

TEST(TagMap, ChainFillsInWhatARepetitionLeavesOut)
{
    const CMappedObject object =
        Chained("10 1\n20 2\n10 3\n20 4\n42 0.5\n10 5\n20 6\n30 7\n0 END\n");
    EXPECT_EQ(object.Doubles(10), "1 3 5 ");
    EXPECT_EQ(object.Doubles(20), "2 4 6 ");
    EXPECT_EQ(object.Doubles(30), "0 0 7 ");
    EXPECT_EQ(object.Doubles(42), "0 0.5 0 ");
    EXPECT_EQ(object.Split(42), "0|0.5|0");
    EXPECT_EQ(object.Value(30), "0;0;7");
}

TEST(TagMap, ChainOfOneRepetitionReadsAsSingleValues)
{
    CMappedObject object = Chained("10 1\n20 2\n0 END\n");
    EXPECT_EQ(object->Double(42, 9.0), 0.0);
    EXPECT_EQ(object.Value(42), "0");
    EXPECT_EQ(object->Int(42, 9), 0);
}

TEST(TagMap, CodesOutOfOrderInARepetitionAreStoredBehindTheFillers)
{
    // 42 ends the search for 20 and 30, then 20 comes as a tag of the object.
    const CMappedObject object = Chained("10 1\n42 0.5\n20 2\n10 3\n20 4\n0 END\n");
    EXPECT_EQ(object.Split(20), "0|2|4");
    EXPECT_EQ(object.Split(30), "0|0");
    EXPECT_EQ(object.Split(42), "0.5|0");
}

TEST(TagMap, TagThatEndsARepetitionIsAnOrdinaryOne)
{
    const CMappedObject object = Chained("10 1\n20 2\n8 A\n62 5\n10 3\n0 END\n");
    EXPECT_EQ(object.Value(8), "A");
    EXPECT_EQ(object.Value(62), "5");
    EXPECT_EQ(object.Split(10), "1|3");
    EXPECT_EQ(object.Split(20), "2|0");
}

TEST(TagMap, ZeroEndsAnObjectInTheMiddleOfARepetition)
{
    CMappedObject object("10 1\n0 LINE\n20 2\n");
    EXPECT_EQ(object.Shown(object->ReadObject({10, 20, 30})), "0 LINE");
    EXPECT_EQ(object.Split(20), "0");
    EXPECT_EQ(object.Split(30), "0");
}

TEST(TagMap, ZeroEndsAnObjectBehindACompleteRepetition)
{
    CMappedObject object("10 1\n20 2\n0 LINE\n20 2\n");
    EXPECT_EQ(object.Shown(object->ReadObject({10, 20})), "0 LINE");
    EXPECT_EQ(object.Split(20), "2");
}

TEST(TagMap, CodeThatContainsThePatternsPassesUnderItsOwnCode)
{
    const CMappedObject object = Chained("10 1\n120 7\n30 3\n42 4\n0 END\n");
    EXPECT_EQ(object.Split(20), "");
    EXPECT_EQ(object.Value(120), "7");
    EXPECT_EQ(object.Split(30), "3");
}

TEST(TagMap, FirstCodeOfAPatternIsComparedExactly)
{
    const CMappedObject object = Chained("110 1\n20 2\n0 END\n");
    EXPECT_EQ(object.Value(110), "1");
    EXPECT_EQ(object.Value(20), "2");
    EXPECT_EQ(object.Split(30), "");
}

TEST(TagMap, FileEndingInARepetitionFillsItUp)
{
    CMappedObject object("10 1\n20 2\n");
    EXPECT_EQ(object.Shown(object->ReadObject({10, 20, 30, 42})), "-1 ");
    EXPECT_EQ(object.Split(30), "0");
    EXPECT_EQ(object.Split(42), "0");
}

TEST(TagMap, FileEndingBehindARepetitionGivesAnEmptyTag)
{
    CMappedObject object("10 1\n20 2\n");
    EXPECT_EQ(object.Shown(object->ReadObject({10, 20})), "-1 ");
    EXPECT_EQ(object.Split(20), "2");
}

TEST(TagMap, PatternOfOneCodeReadsOn)
{
    CMappedObject object("10 1\n10 2\n8 A\n0 END\n");
    EXPECT_EQ(object.Shown(object->ReadObject({10})), "0 END");
    EXPECT_EQ(object.Split(10), "1|2");
    EXPECT_EQ(object.Value(8), "A");
}

TEST(TagMap, EmptyValueInARepetitionShortensTheList)
{
    const CMappedObject object = Chained("10 1\n20\n10 2\n20 3\n0 END\n");
    EXPECT_EQ(object.Split(10), "1|2");
    EXPECT_EQ(object.Split(20), "3");
}
