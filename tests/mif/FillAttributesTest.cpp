// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

#include <QDate>

using namespace VelorExchange::test;

namespace {

// The attributes of one point with one column of the type.
std::string ValueOf(const QByteArray& type, const QByteArray& row)
{
    const std::string text =
        Recorded(CMifPair("Columns 1\na " + type + "\nData\nPoint 0 0\n", row + '\n'));
    const std::string head = "AddPoint (0 0)";
    return text.substr(head.size(), text.size() - head.size() - 1);
}

std::string Today()
{
    return " [a=QDate:" + QDate::currentDate().toString(Qt::ISODate).toStdString() + ']';
}

} // namespace

TEST(FillAttributes, TextIsSimplified)
{
    EXPECT_EQ(ValueOf("Char", "\"  two   words \""), " [a=QString:two words]");
    EXPECT_EQ(ValueOf("Char", "a b"), " [a=QString:a b]");
    EXPECT_EQ(ValueOf("Char", "a\vb"), " [a=QString:a b]");
    EXPECT_EQ(ValueOf("Char", "b "), " [a=QString:b]");
    EXPECT_EQ(ValueOf("Char", "\"  \""), " [a=QString:]");
}

TEST(FillAttributes, TextBeyondAsciiIsSimplifiedToo)
{
    const CLocalCodec local("windows-1251");
    EXPECT_EQ(ValueOf("Char", "\xCF\xA0\xA0\xEE"), " [a=QString:П о]");
}

TEST(FillAttributes, TextIsCutAfter255Characters)
{
    EXPECT_EQ(ValueOf("Char", QByteArray(255, 'x')), " [a=QString:" + std::string(255, 'x') + ']');
    EXPECT_EQ(ValueOf("Char", QByteArray(256, 'x')), " [a=QString:" + std::string(255, 'x') + ']');
    EXPECT_EQ(ValueOf("Char", QByteArray(200, ' ') + QByteArray(255, 'x')),
              " [a=QString:" + std::string(255, 'x') + ']');
}

TEST(FillAttributes, NumbersHaveTheirTypes)
{
    EXPECT_EQ(ValueOf("Integer", "\"12\""), " [a=int:12]");
    EXPECT_EQ(ValueOf("Smallint", "-12"), " [a=short:-12]");
    EXPECT_EQ(ValueOf("Decimal", "1.25"), " [a=double:1.25]");
    EXPECT_EQ(ValueOf("Float", "0.1"), " [a=float:0.10000000149011612]");
}

TEST(FillAttributes, NumbersThatDoNotParseAreZero)
{
    EXPECT_EQ(ValueOf("Integer", "x"), " [a=int:0]");
    EXPECT_EQ(ValueOf("Integer", "1.5"), " [a=int:0]");
    EXPECT_EQ(ValueOf("Integer", "2147483648"), " [a=int:0]");
    EXPECT_EQ(ValueOf("Smallint", "32768"), " [a=short:0]");
    EXPECT_EQ(ValueOf("Decimal", "1,5"), " [a=double:0]");
    EXPECT_EQ(ValueOf("Float", "x"), " [a=float:0]");
}

TEST(FillAttributes, NumbersMayHaveSpaceAround)
{
    EXPECT_EQ(ValueOf("Integer", " 12 "), " [a=int:12]");
    EXPECT_EQ(ValueOf("Decimal", " 1.5 "), " [a=double:1.5]");
}

TEST(FillAttributes, DateOfTextFormIsTaken)
{
    EXPECT_EQ(ValueOf("Date", "Sat May 20 1995"), " [a=QDate:1995-05-20]");
}

TEST(FillAttributes, DateThatDoesNotParseIsToday)
{
    for (const char* date : {"20200131", "2020-01-31", "x"}) {
        const std::string before = Today();
        const std::string value = ValueOf("Date", date);
        EXPECT_TRUE(value == before || value == Today()) << value;
    }
}

TEST(FillAttributes, LogicalIsWhatHoldsTrue)
{
    EXPECT_EQ(ValueOf("Logical", "T"), " [a=bool:false]");
    EXPECT_EQ(ValueOf("Logical", "xTRUEx"), " [a=bool:true]");
    EXPECT_EQ(ValueOf("Logical", "\"tr\"\"ue\""), " [a=bool:true]");
}

TEST(FillAttributes, EmptyFieldMakesNoAttribute)
{
    EXPECT_EQ(ValueOf("Char", ""), "");
    EXPECT_EQ(ValueOf("Integer", "\"\""), "");
    EXPECT_EQ(
        Recorded(CMifPair("Columns 3\na Char\nb Char\nc Char\nData\nPoint 0 0\n", "1\t\t3\n")),
        "AddPoint (0 0) [a=QString:1] [c=QString:3]\n");
}

TEST(FillAttributes, RowMayHaveFewerAndMoreFields)
{
    const QByteArray mif = "Columns 2\na Char\nb Char\nData\nPoint 0 0\nPoint 0 0\n";
    EXPECT_EQ(Recorded(CMifPair(mif, "1\n1\t2\t3\n")),
              "AddPoint (0 0) [a=QString:1]\nAddPoint (0 0) [a=QString:1] [b=QString:2]\n");
}

TEST(FillAttributes, NamesAreNormalisedAndMadeUnique)
{
    EXPECT_EQ(Recorded(CMifPair("Columns 4\nName Char\nNAME Char\n1st Char\nname_1 Char\nData\n"
                                "Point 0 0\nPoint 0 0\n",
                                "1\t2\t3\t4\n\t2\t3\t4\n")),
              "AddPoint (0 0) [Name=QString:1] [NAME_1=QString:2] [_1st=QString:3]"
              " [name_1_1=QString:4]\n"
              "AddPoint (0 0) [NAME=QString:2] [_1st=QString:3] [name_1=QString:4]\n");
}

TEST(FillAttributes, ShortRowsFileLeavesLaterObjectsBare)
{
    EXPECT_EQ(Recorded(CMifPair("Columns 1\na Char\nData\nPoint 0 0\nPoint 1 1\n", "1\n")),
              "AddPoint (0 0) [a=QString:1]\nAddPoint (1 1)\n");
    EXPECT_EQ(Recorded(CMifPair("Columns 1\na Char\nData\nPoint 0 0\n", "")), "AddPoint (0 0)\n");
}

TEST(FillAttributes, ManyEqualNamesDoNotTakeForever)
{
    QByteArray mif = "Columns 4000\n";
    QByteArray row;
    for (int i = 0; i < 4000; ++i) {
        mif += "same Integer\n";
        row += "1\t";
    }
    CMifPair pair(mif + "Data\nPoint 0 0\nPoint 1 1\n", row + '\n' + row + '\n');
    const std::string text = Recorded(pair);
    EXPECT_NE(text.find("[same_3999=int:1]"), std::string::npos);
    EXPECT_EQ(text.find("[same_4000"), std::string::npos);
}
