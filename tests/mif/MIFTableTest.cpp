// SPDX-License-Identifier: MIT
#include "tests/support/MifWriting.h"

#include <limits>

using namespace VelorExchange;
using namespace VelorExchange::mif;
using namespace VelorExchange::test;

namespace {

CAttributeMIF Attribute(const char* name, const QVariant& value)
{
    return {QString::fromUtf8(name), value};
}

CPointMIF Point(const std::vector<CAttributeMIF>& attributes)
{
    CPointMIF point;
    point.attributes = attributes;
    return point;
}

std::string Header(const CMifWriting& writing)
{
    const std::string text = writing.File("a.MIF");
    return text.substr(0, text.find("DATA\n"));
}

const std::string kHead = "Version 450\nCharSet \"WindowsCyrillic\"\nDelimiter \";\"\n"
                          "CoordSys Nonearth Units \"m\"\n";

} // namespace

TEST(MIFTable, HeaderTellsBoundsAndColumns)
{
    CMifWriting writing;
    writing->AddPoint(Point({Attribute("n", 1)}), kLayer);
    writing.Rewrite();
    EXPECT_EQ(writing.File("a.MIF"),
              kHead
                  + "Bounds (0.0000, 0.0000) (0.0000, 0.0000)\nColumns 1\nn INTEGER\n"
                    "DATA\n\nPOINT 0.0000 0.0000\n");
}

TEST(MIFTable, WithoutAttributesThereIsOneTextColumnAndEmptyRows)
{
    CMifWriting writing;
    writing->AddPoint(CPointMIF(), kLayer);
    writing->AddPoint(CPointMIF(), kLayer);
    writing.Rewrite();
    EXPECT_EQ(Header(writing),
              kHead + "Bounds (0.0000, 0.0000) (0.0000, 0.0000)\nColumns 1\nTEXT CHAR(80)\n");
    EXPECT_EQ(writing.File("a.MID"), "\n\n");
}

TEST(MIFTable, EveryTypeHasItsTextAndOthersNone)
{
    CMifWriting writing;
    writing->AddPoint(
        Point({Attribute("a", 1), Attribute("b", 2.5), Attribute("c", QStringLiteral("x")),
               Attribute("d", QVariant::fromValue<short>(4)),
               Attribute("e", QVariant::fromValue(0.5F)), Attribute("f", QDate(2020, 2, 29)),
               Attribute("g", true)}),
        kLayer);
    writing.Rewrite();
    EXPECT_EQ(Header(writing),
              kHead
                  + "Bounds (0.0000, 0.0000) (0.0000, 0.0000)\nColumns 7\na INTEGER\n"
                    "b DECIMAL(20,5)\nc CHAR(80)\nd SMALLINT\ne FLOAT\nf \ng \n");
    EXPECT_EQ(writing.File("a.MID"), "1;2.5;\"x\";4;0.5;2020-02-29;true\n");
}

TEST(MIFTable, ColumnsAreTheUnionOfAllRecords)
{
    CMifWriting writing;
    writing->AddPoint(Point({Attribute("a", 1), Attribute("b", 2)}), kLayer);
    writing->AddPoint(Point({Attribute("c", 3), Attribute("a", 4)}), kLayer);
    writing->AddPoint(Point({}), kLayer);
    writing.Rewrite();
    EXPECT_EQ(Header(writing),
              kHead
                  + "Bounds (0.0000, 0.0000) (0.0000, 0.0000)\nColumns 3\na INTEGER\nb INTEGER\n"
                    "c INTEGER\n");
    EXPECT_EQ(writing.File("a.MID"), "1;2;\n4;;3\n;;\n");
}

TEST(MIFTable, NamesMeetWithoutRegardToCaseButValuesByTheExactName)
{
    CMifWriting writing;
    writing->AddPoint(Point({Attribute("Имя", 1)}), kLayer);
    writing->AddPoint(Point({Attribute("ИМЯ", 2)}), kLayer);
    writing.Rewrite();
    EXPECT_NE(Header(writing).find("Columns 1\nИмя INTEGER\n"), std::string::npos);
    EXPECT_EQ(writing.File("a.MID"), "1\n\n");
}

TEST(MIFTable, ValueOfAnotherTypeLeavesItsFieldEmpty)
{
    CMifWriting writing;
    writing->AddPoint(Point({Attribute("a", 1)}), kLayer);
    writing->AddPoint(Point({Attribute("a", 2.0)}), kLayer);
    writing->AddPoint(Point({Attribute("a", 2.0), Attribute("a", 3)}), kLayer);
    writing.Rewrite();
    EXPECT_EQ(writing.File("a.MID"), "1\n\n3\n");
}

TEST(MIFTable, FirstOfTwoEqualNamesAndTypesStands)
{
    CMifWriting writing;
    writing->AddPoint(Point({Attribute("a", 1), Attribute("a", 2)}), kLayer);
    writing.Rewrite();
    EXPECT_EQ(writing.File("a.MID"), "1\n");
}

TEST(MIFTable, NullValueLeavesItsFieldEmptyAndEmptyTextDoesNot)
{
    CMifWriting writing;
    writing->AddPoint(Point({Attribute("a", QString()), Attribute("b", QStringLiteral("")),
                             Attribute("c", QDate())}),
                      kLayer);
    writing.Rewrite();
    EXPECT_EQ(writing.File("a.MID"), ";\"\";\n");
}

TEST(MIFTable, QuotesInsideAValueAreNotEscaped)
{
    CMifWriting writing;
    writing->AddPoint(Point({Attribute("a", QStringLiteral("x\"y;%1"))}), kLayer);
    writing.Rewrite();
    EXPECT_EQ(writing.File("a.MID"), "\"x\"y;%1\"\n");
}

TEST(MIFTable, NumbersAreThoseOfTheVariant)
{
    CMifWriting writing;
    std::string expected;
    for (const double value : {0.1, 1e-7, 123456789.123, 1e22, -0.0}) {
        writing->AddPoint(Point({Attribute("a", value)}), kLayer);
        expected += QVariant(value).toString().toStdString() + '\n';
    }
    writing.Rewrite();
    EXPECT_EQ(writing.File("a.MID"), expected);
}

TEST(MIFTable, GivenBoundsStandInEveryHeader)
{
    CMifWriting writing;
    writing->AddPoint(CPointMIF(), kLayer);
    writing->AddPoint(CPointMIF(), QStringLiteral("b"));
    writing->SetPrecision(1);
    writing.Rewrite(QRectF(1, 2, 10, 20));
    EXPECT_NE(writing.File("a.MIF").find("Bounds (1.0, 22.0) (11.0, 2.0)\n"), std::string::npos);
    EXPECT_NE(writing.File("b.MIF").find("Bounds (1.0, 22.0) (11.0, 2.0)\n"), std::string::npos);
}

TEST(MIFTable, GivenBoundsThatAreNotFiniteAreWrittenAsZero)
{
    CMifWriting writing;
    writing->AddPoint(CPointMIF(), kLayer);
    writing->SetPrecision(0);
    writing.Rewrite(QRectF(std::numeric_limits<double>::quiet_NaN(), 2,
                           std::numeric_limits<double>::infinity(), 3));
    EXPECT_NE(writing.File("a.MIF").find("Bounds (0, 5) (0, 2)\n"), std::string::npos);
}

TEST(MIFTable, NamesAndValuesGoThroughTheLocalCodec)
{
    QTextCodec* const before = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    CMifWriting writing;
    writing->AddPoint(Point({Attribute("Дом", QStringLiteral("Дом 5"))}), kLayer);
    writing.Rewrite();
    QTextCodec::setCodecForLocale(before);
    EXPECT_NE(writing.File("a.MIF").find("\n\xC4\xEE\xEC CHAR(80)\n"), std::string::npos);
    EXPECT_EQ(writing.File("a.MID"), "\"\xC4\xEE\xEC 5\"\n");
}
