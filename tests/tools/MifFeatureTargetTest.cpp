// SPDX-License-Identifier: MIT
#include "tests/tools/MifTargetFixture.h"
#include "VelorExchange/foundation/FileError.h"

#include <QDate>

#include <cmath>

namespace velorx::test {

namespace {

using MifFeatureTarget = CMifTargetTest;

} // namespace

// ---- Files and layers ---------------------------------------------------------------------------

TEST_F(MifFeatureTarget, PairLiesUnderTheNameThatWasGiven)
{
    MakePair().Take(Point("out"));
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(Names(), (std::set<std::string>{"out.mif", "out.mid"}));
    EXPECT_TRUE(Holds("out.mif", "POINT 1.00 2.00\n"));
}

TEST_F(MifFeatureTarget, MidIsSpelledLikeTheMif)
{
    MakePair("OUT.MIF").Take(Point("OUT"));
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(Names(), (std::set<std::string>{"OUT.MIF", "OUT.MID"}));
}

TEST_F(MifFeatureTarget, SeveralLayersStandInAColumn)
{
    MakePair().Take(Point("Roads"));
    target->Take(Point("Houses"));
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "Columns 1\nLAYER CHAR(80)\n"));
    EXPECT_EQ(File("out.mid"), "\"Roads\"\n\"Houses\"\n");
    EXPECT_EQ(ReadBack().points.at(1).layer, "Houses");
}

TEST_F(MifFeatureTarget, OneLayerThatIsCalledLikePairOrSourceNeedsNoColumn)
{
    MakePair().Take(Point("out"));
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "Columns 1\nTEXT CHAR(80)\n"));
    EXPECT_EQ(File("out.mid"), "\n");
    MakePair().TakeHead({"source"});
    auto point = Point("source");
    point.attributes = Attributes({{"A", 5}});
    target->Take(point);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "Columns 1\nA INTEGER\n"));
    EXPECT_EQ(File("out.mid"), "5\n");
}

TEST_F(MifFeatureTarget, OneLayerOfAnotherNameKeepsIt)
{
    MakePair().TakeHead({"source"});
    target->Take(Point("Roads"));
    target->Finish();
    EXPECT_EQ(File("out.mid"), "\"Roads\"\n");
}

TEST_F(MifFeatureTarget, FolderHoldsAPairOfEachLayer)
{
    MakeFolder().Take(Point("Roads"));
    auto house = Point("Дома");
    house.attributes = Attributes({{"N", 5}});
    target->Take(house);
    target->Finish();
    EXPECT_EQ(Names("/tables"),
              (std::set<std::string>{"Roads.mif", "Roads.mid", "Дома.mif", "Дома.mid"}));
    EXPECT_EQ(File("tables/Roads.mid"), "\n");
    EXPECT_EQ(File("tables/Дома.mid"), "5\n");
    EXPECT_EQ(ReadBack("tables/Дома.mif").points.at(0).layer, QString::fromUtf8("Дома"));
}

TEST_F(MifFeatureTarget, LayersThatAreNoFileNamesStayInTheFolder)
{
    MakeFolder();
    for (const char* layer : {"../x", "a/b", "A:b", "con", "", "/tmp/y", "..", "a\\b"}) {
        target->Take(Point(layer));
    }
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(
        Names("/tables"),
        (std::set<std::string>{"_.._x.mif", "_.._x.mid", "a_b.mif", "a_b.mid", "A_b_1.mif",
                               "A_b_1.mid", "_con.mif", "_con.mid", "_.mif", "_.mid", "_tmp_y.mif",
                               "_tmp_y.mid", "__1.mif", "__1.mid", "a_b_2.mif", "a_b_2.mid"}));
    EXPECT_EQ(Names(), (std::set<std::string>{"tables"}));
    EXPECT_TRUE(Reports("The layer ../x is in the table _.._x")) << Report();
    EXPECT_FALSE(std::filesystem::exists("/tmp/y.mif"));
}

TEST_F(MifFeatureTarget, EmptyMapMakesAnEmptyTable)
{
    MakePair();
    EXPECT_EQ(target->Finish(), "");
    EXPECT_TRUE(Holds("out.mif", "DATA\n"));
    EXPECT_EQ(File("out.mid"), "");
    EXPECT_TRUE(ReadBack().points.empty());
    EXPECT_TRUE(Reports("There is nothing that a table could hold"));
    EXPECT_EQ(MakeFolder().Finish(), "");
    EXPECT_TRUE(Names("/tables").empty());
}

TEST_F(MifFeatureTarget, LayersWithoutObjectsAndHiddenOnesAreListed)
{
    MakePair().TakeLayer({"empty"});
    target->TakeLayer({"out", false});
    target->Take(Point("out"));
    target->Finish();
    EXPECT_TRUE(Reports("1  layers without objects (layers: empty 1)")) << Report();
    EXPECT_TRUE(Reports("1  hidden layers are shown (layers: out 1)"));
}

TEST_F(MifFeatureTarget, LogCountsObjectsOfEachTable)
{
    MakeFolder().Take(Point("Roads"));
    target->Take(Point("Roads"));
    target->Finish();
    const QString log = target->Log();
    EXPECT_TRUE(log.contains("Roads.MIF")) << log.toStdString();
    EXPECT_TRUE(log.contains(QString::fromUtf8("точки")));
}

TEST_F(MifFeatureTarget, FolderThatCannotBeWrittenIsAFileError)
{
    MakeFolder().Take(Point("Roads"));
    std::filesystem::remove(folder.path + "/tables");
    EXPECT_THROW(target->Finish(), VelorExchange::FileError);
}

TEST_F(MifFeatureTarget, BoundsHoldAllLayersAndAreNeverEmpty)
{
    MakeFolder().Take(Point("A", 10, 20));
    target->Finish();
    EXPECT_TRUE(Holds("tables/A.mif", "Bounds (9.50, 20.50) (10.50, 19.50)\n"))
        << File("tables/A.mif");
    MakeFolder().Take(Point("A", 10, 20));
    target->Take(Point("B", 110, 220));
    target->Finish();
    EXPECT_TRUE(Holds("tables/A.mif", "Bounds (10.00, 220.00) (110.00, 20.00)\n"));
}

// ---- Attributes ---------------------------------------------------------------------------------

TEST_F(MifFeatureTarget, AttributesComeBack)
{
    auto point = Point("out");
    point.attributes = Attributes({{"A", QString::fromUtf8("Дом; 5")},
                                   {"B", 7},
                                   {"C", QVariant::fromValue<short>(8)},
                                   {"D", 0.123456789},
                                   {"E", QVariant::fromValue(0.5F)},
                                   {"F", QDate(2024, 2, 29)},
                                   {"G", true}});
    MakePair().Take(point);
    target->Take(Point("out"));
    target->Finish();
    const CFeatureRecorder& back = ReadBack();
    ASSERT_EQ(back.points.size(), 2U);
    const auto& attributes = *back.points[0].attributes;
    ASSERT_EQ(attributes.size(), 7U);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(attributes[i].name, point.attributes->at(i).name);
        EXPECT_EQ(attributes[i].value.userType(), point.attributes->at(i).value.userType());
        EXPECT_EQ(attributes[i].value, point.attributes->at(i).value);
    }
    EXPECT_EQ(attributes[5].value, QVariant(QString("2024-02-29")));
    EXPECT_EQ(attributes[6].value, QVariant(QString("true")));
    EXPECT_EQ(back.points[1].attributes, nullptr);
}

TEST_F(MifFeatureTarget, HeaderTellsWidthsAndDecimals)
{
    auto point = Point("out");
    point.attributes = Attributes({{"A", QString(200, 'x')}, {"B", 0.123456789}});
    MakePair().Take(point);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "Columns 2\nA CHAR(200)\nB DECIMAL(20,9)\n"));
}

TEST_F(MifFeatureTarget, ChangedAttributesAreListed)
{
    auto point = Point("out");
    point.attributes = Attributes({{"A", QString(300, 'x')},
                                   {"two words", QString("two\nlines")},
                                   {"C", QString::fromUtf8("街")},
                                   {"D", std::nan("")}});
    MakePair().Take(point);
    target->Take(point);
    target->Finish();
    EXPECT_TRUE(Reports("2  attributes were cut to 254 letters")) << Report();
    EXPECT_TRUE(Reports("2  attributes lost their line breaks"));
    EXPECT_TRUE(Reports("2  attributes have letters that the code page lacks"));
    EXPECT_TRUE(Reports("2  attributes that are no numbers"));
    EXPECT_TRUE(Reports("\nThe attribute two words is in the column two_words\n"));
}

TEST_F(MifFeatureTarget, ClassifierCodeHasAColumn)
{
    auto point = Point("out");
    point.code = 31410000;
    MakePair().Take(point);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "Columns 1\nSXF_CODE INTEGER\n"));
    EXPECT_EQ(ReadBack().points.at(0).code, 31410000);
}

} // namespace velorx::test
