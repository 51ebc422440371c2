// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIDFile_p.h"

#include "tests/support/MifRecorder.h"

using namespace VelorExchange::mif;
using VelorExchange::test::CLocalCodec;
using VelorExchange::test::CMifPair;

namespace {

// The fields of the first row, up to the first that is empty.
std::vector<QString> FirstRow(const QByteArray& row, const char* delimiter)
{
    const CMifPair pair("", row);
    CMIDFile file(pair.Path());
    file.SetDelimiter(QString::fromUtf8(delimiter));
    EXPECT_TRUE(file.NextRecord());
    std::vector<QString> fields;
    for (int i = 0; !file.Field(i).isEmpty(); ++i) {
        fields.push_back(file.Field(i));
    }
    return fields;
}

std::vector<QString> Texts(const std::vector<const char*>& texts)
{
    std::vector<QString> all;
    for (const char* text : texts) {
        all.push_back(QString::fromUtf8(text));
    }
    return all;
}

} // namespace

TEST(MIDFile, DelimiterInsideQuotesIsText)
{
    EXPECT_EQ(FirstRow("1;\"a;b\";3\r\n", ";"), Texts({"1", "a;b", "3"}));
}

TEST(MIDFile, OddQuoteTakesTheRestAsOneField)
{
    EXPECT_EQ(FirstRow("1;\"a;b;3\n", ";"), Texts({"1", "a;b;3"}));
}

TEST(MIDFile, DoubledQuoteDisappears)
{
    EXPECT_EQ(FirstRow("\"a \"\"b\"\" c\";2\n", ";"), Texts({"a b c", "2"}));
}

TEST(MIDFile, ApostropheHasNoMeaning)
{
    EXPECT_EQ(FirstRow("'a;b';c\n", ";"), Texts({"'a", "b'", "c"}));
}

TEST(MIDFile, TabIsTheDelimiterAtFirst)
{
    const CMifPair pair("", "a\tb\n");
    CMIDFile file(pair.Path());
    ASSERT_TRUE(file.NextRecord());
    EXPECT_EQ(file.Field(1), QStringLiteral("b"));
}

TEST(MIDFile, OnlyTheFirstCharacterOfTheDelimiterCounts)
{
    EXPECT_EQ(FirstRow("1;,2,3\n", ";,"), Texts({"1", ",2,3"}));
}

TEST(MIDFile, DelimiterMayLieBeyondAscii)
{
    const CLocalCodec local("windows-1251");
    EXPECT_EQ(FirstRow("1\xA7\"a\xA7"
                       "b\"\xA7"
                       "3\r\n",
                       "§"),
              Texts({"1", "a§b", "3"}));
}

TEST(MIDFile, CarriageReturnsInsideDisappear)
{
    EXPECT_EQ(FirstRow("a\rb;\rc\r\n", ";"), Texts({"ab", "c"}));
}

TEST(MIDFile, ByteOrderMarkOfTheRowGoesAndOthersStay)
{
    const CLocalCodec local("UTF-8");
    EXPECT_EQ(FirstRow("\xEF\xBB\xBF"
                       "a;\xEF\xBB\xBF"
                       "b\n",
                       ";"),
              Texts({"a",
                     "\xEF\xBB\xBF"
                     "\xEF\xBB\xBF"
                     "b"}));
}

TEST(MIDFile, FieldBehindTheLastIsEmpty)
{
    const CMifPair pair("", "a\n");
    CMIDFile file(pair.Path());
    ASSERT_TRUE(file.NextRecord());
    EXPECT_EQ(file.Field(1), QString());
    EXPECT_EQ(file.Field(1000), QString());
}

TEST(MIDFile, EmptyRowIsARowWithAnEmptyField)
{
    const CMifPair pair("", "\n\na\n");
    CMIDFile file(pair.Path());
    EXPECT_TRUE(file.NextRecord());
    EXPECT_FALSE(file.IsEmpty());
    EXPECT_EQ(file.Field(0), QString());
    EXPECT_TRUE(file.NextRecord());
    EXPECT_TRUE(file.NextRecord());
    EXPECT_EQ(file.Field(0), QStringLiteral("a"));
}

TEST(MIDFile, BehindTheLastRowThereIsNone)
{
    const CMifPair pair("", "a");
    CMIDFile file(pair.Path());
    EXPECT_TRUE(file.IsEmpty());
    EXPECT_TRUE(file.NextRecord());
    EXPECT_FALSE(file.NextRecord());
    EXPECT_TRUE(file.IsEmpty());
    EXPECT_EQ(file.RowsTaken(), 1);
}

TEST(MIDFile, MissingFileHasNoRows)
{
    CMIDFile file(QStringLiteral("/no/such/path"));
    EXPECT_FALSE(file.NextRecord());
    EXPECT_TRUE(file.IsEmpty());
}

TEST(MIDFile, RepeatKeepsTheRowAtHand)
{
    const CMifPair pair("", "a\nb\n");
    CMIDFile file(pair.Path());
    file.NextRecord();
    file.SetRepeatCount(2);
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(file.NextRecord());
        EXPECT_EQ(file.Field(0), QStringLiteral("a"));
    }
    file.NextRecord();
    EXPECT_EQ(file.Field(0), QStringLiteral("b"));
}

TEST(MIDFile, RepeatWithoutARowReadsOne)
{
    const CMifPair pair("", "a\nb\n");
    CMIDFile file(pair.Path());
    file.SetRepeatCount(2);
    file.NextRecord();
    EXPECT_EQ(file.Field(0), QStringLiteral("a"));
    file.NextRecord();
    EXPECT_EQ(file.Field(0), QStringLiteral("a"));
    file.NextRecord();
    EXPECT_EQ(file.Field(0), QStringLiteral("b"));
}

TEST(MIDFile, RepeatKeepsTheRowAtTheEnd)
{
    const CMifPair pair("", "a\n");
    CMIDFile file(pair.Path());
    file.NextRecord();
    file.SetRepeatCount(1);
    EXPECT_FALSE(file.NextRecord());
    EXPECT_EQ(file.Field(0), QStringLiteral("a"));
    EXPECT_FALSE(file.NextRecord());
    EXPECT_TRUE(file.IsEmpty());
}
