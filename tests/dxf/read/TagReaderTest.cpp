// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/TagReader_p.h"

#include "tests/support/LocaleCodec.h"
#include "tests/support/PlainTags.h"

#include <QBuffer>

#include <algorithm>
#include <random>

using VelorExchange::dxf::CDXFTag;
using VelorExchange::dxf::CTagReader;
using VelorExchange::dxf::CTextSpan;
using VelorExchange::dxf::kZeroSpan;
using VelorExchange::test::CLocaleCodec;
using VelorExchange::test::CPlainTag;
using VelorExchange::test::PlainTag;

namespace {

constexpr int kOldVersion = 1009;
constexpr int kUtf8Version = 1021;

// A reader of bytes, at its first object.
class CInput
{
public:
    explicit CInput(const QByteArray& all, int version = kOldVersion) : bytes(all), device(&bytes)
    {
        device.open(QIODevice::ReadOnly);
        reader = std::make_unique<CTagReader>(device);
        reader->SetVersion(version);
        reader->StartObject();
    }

    CTagReader* operator->() { return reader.get(); }
    QString NextValue() { return reader->Text(reader->ReadTag().value); }

private:
    QByteArray bytes;
    QBuffer device;
    std::unique_ptr<CTagReader> reader;
};

int CodeOf(const QByteArray& line, int version = kOldVersion)
{
    CInput input(line + "\r\nvalue\r\n", version);
    const CDXFTag tag = input->ReadTag();
    EXPECT_EQ(input->Text(tag.value), QStringLiteral("value"));
    return tag.code;
}

QString ValueOf(const QByteArray& line, int version = kOldVersion)
{
    return CInput("  1\r\n" + line + "\r\n", version).NextValue();
}

bool IsNamed(const QByteArray& value, std::string_view name, int version = kUtf8Version)
{
    CInput input("  0\r\n" + value + "\r\n", version);
    const CDXFTag tag = input->ReadTag();
    return input->Is(tag, 0, name);
}

bool Contains(const QByteArray& codeLine, int code)
{
    CInput input(codeLine + "\r\nvalue\r\n");
    const CDXFTag tag = input->ReadTag();
    return input->CodeContains(tag, code);
}

// The number by which a code of this text is known.
int NumberOf(const QString& code)
{
    if (code.isEmpty()) {
        return CDXFTag::kNoCode;
    }
    const int number = code.toInt();
    const bool isShortest = code.size() <= 4 && number >= 0 && QString::number(number) == code;
    return isShortest ? number : CDXFTag::kOtherCode;
}

// Bytes rich in line ends, blanks, digits and halves of characters.
QByteArray RandomBytes(std::mt19937& random, int size)
{
    static const char kBytes[] = "\r\n\r\n\n \t;0123.-eA\xD0\xB0\xE2\x80\x83\xC2\xA0\x85"
                                 "\xEF\xBB\xBF\x81\x83\x8B\x9F\xE3\xF0\xFF\x1B$B";
    QByteArray bytes(size, '\0');
    const auto used = 6 + random() % (sizeof kBytes - 6); // NUL among them
    for (char& c : bytes) {
        c = kBytes[random() % used];
    }
    return bytes;
}

// The first group that differs from what plain reading gives, or an empty text.
std::string FirstDifference(QByteArray bytes, int version)
{
    CInput input(bytes, version);
    QBuffer plain(&bytes);
    plain.open(QIODevice::ReadOnly);
    for (int i = 0; !plain.atEnd(); ++i) {
        if (i % 4 == 0) {
            input->StartObject();
        }
        if (input->AtEnd()) {
            return "ends before group " + std::to_string(i);
        }
        const CPlainTag expected = PlainTag(plain, version);
        const CDXFTag tag = input->ReadTag();
        const bool same = tag.code == NumberOf(expected.code)
            && input->Text(tag.value) == expected.value
            && input->CodeContains(tag, 20) == expected.code.contains(QLatin1String("20"))
            && input->Position() == plain.pos();
        if (!same) {
            return "group " + std::to_string(i) + ": " + expected.code.toStdString() + " = "
                + expected.value.toStdString();
        }
    }
    return input->AtEnd() ? "" : "does not end";
}

} // namespace

TEST(TagReader, PairsLinesToGroups)
{
    CInput input("  8\r\nWALLS\r\n 10\r\n1.5\r\n");
    const CDXFTag layer = input->ReadTag();
    const CDXFTag x = input->ReadTag();
    EXPECT_EQ(layer.code, 8);
    EXPECT_EQ(input->Text(layer.value), QStringLiteral("WALLS"));
    EXPECT_EQ(x.code, 10);
    EXPECT_EQ(input->ToDouble(x.value), 1.5);
    EXPECT_TRUE(input->AtEnd());
}

TEST(TagReader, GroupBehindTheEndHasNoCodeAndNoValue)
{
    CInput input("");
    const CDXFTag tag = input->ReadTag();
    EXPECT_EQ(tag.code, CDXFTag::kNoCode);
    EXPECT_EQ(input->Text(tag.value), QString());
}

TEST(TagReader, MissingValueLineGivesAnEmptyValue)
{
    for (const char* bytes : {"  8", "  8\n", "  8\r\n", "8\r", "1071\n"}) {
        CInput input(bytes);
        const CDXFTag tag = input->ReadTag();
        EXPECT_EQ(tag.code, QByteArray(bytes).trimmed().toInt()) << bytes;
        EXPECT_EQ(input->Text(tag.value), QString()) << bytes;
    }
}

TEST(TagReader, BlanksAroundACodeAreDropped)
{
    for (const char* line :
         {"0", " 0", "  0", "   0", "      0", "0 ", "  0  ", "\t0", "0\t", "\v0\f",
          "                         0", "                0                 "})
    {
        EXPECT_EQ(CodeOf(line), 0) << '"' << line << '"';
    }
}

TEST(TagReader, EveryCodeOfUpToFourDigitsIsThatNumber)
{
    for (int code = 0; code <= 9999; ++code) {
        const QByteArray digits = QByteArray::number(code);
        ASSERT_EQ(CodeOf(digits), code);
        ASSERT_EQ(CodeOf(digits.rightJustified(3)), code);
        ASSERT_EQ(CodeOf(digits.rightJustified(6)), code);
    }
}

TEST(TagReader, EveryLineOfThreeCharactersGivesItsCode)
{
    static const char kCharacters[] = " 0159\t+x\r";
    for (const char a : kCharacters) {
        for (const char b : kCharacters) {
            for (const char c : kCharacters) {
                const QByteArray bytes = QByteArray{} + a + b + c + "\nvalue\n8\nx\n";
                ASSERT_EQ(FirstDifference(bytes, kOldVersion), "") << bytes.constData();
            }
        }
    }
}

TEST(TagReader, ZeroPaddedCodeIsAnotherCode)
{
    for (const char* line : {"00", "067", " 08", "000", "0010", "  00"}) {
        EXPECT_EQ(CodeOf(line), CDXFTag::kOtherCode) << line;
    }
}

TEST(TagReader, CodeThatIsNoNumberIsAnotherCode)
{
    for (const char* line : {"+8", "-8", "8.0", "8a", "8 8", "LINE", "12345", "4294967296",
                             "18446744073709551624", "88888888888888888888888888888888888888"})
    {
        EXPECT_EQ(CodeOf(line), CDXFTag::kOtherCode) << line;
    }
}

TEST(TagReader, EmptyCodeLineIsNoCode)
{
    EXPECT_EQ(CodeOf(""), CDXFTag::kNoCode);
    EXPECT_EQ(CodeOf("   "), CDXFTag::kNoCode);
    EXPECT_EQ(CodeOf(QByteArray(40, ' ')), CDXFTag::kNoCode);
}

TEST(TagReader, BlanksBeyondAsciiAroundACodeAreDropped)
{
    EXPECT_EQ(CodeOf("\xC2\xA0"
                     "8",
                     kUtf8Version),
              8); // no-break space
    EXPECT_EQ(CodeOf("8\xE2\x80\x83", kUtf8Version), 8); // em space
    EXPECT_EQ(CodeOf("\xE3\x80\x80"
                     "67 ",
                     kUtf8Version),
              67); // ideographic space
    const CLocaleCodec codec("windows-1251");
    EXPECT_EQ(CodeOf("\xA0"
                     "8\xA0"),
              8);
}

TEST(TagReader, DigitsBeyondAsciiAreNoCode)
{
    EXPECT_EQ(CodeOf("\xD9\xA8", kUtf8Version), CDXFTag::kOtherCode); // an Arabic 8
}

TEST(TagReader, BlanksAroundAValueAreDropped)
{
    EXPECT_EQ(ValueOf("  inner  blanks stay \t"), QStringLiteral("inner  blanks stay"));
    EXPECT_EQ(ValueOf("\v\f\tA\t"), QStringLiteral("A"));
    EXPECT_EQ(ValueOf("   "), QString());
    EXPECT_EQ(ValueOf(""), QString());
    EXPECT_EQ(ValueOf("\xC2\xA0"
                      "A\xE2\x80\x83",
                      kUtf8Version),
              QStringLiteral("A"));
}

TEST(TagReader, HalfACharacterTakesTheLineEndAlong)
{
    const QByteArray line("\x82\xA0\x81\n"); // the third byte starts a character of two
    const CLocaleCodec codec("Shift_JIS");
    CInput input("  1\n" + line);
    EXPECT_EQ(input.NextValue(), QString::fromLocal8Bit(line).trimmed());
}

TEST(TagReader, LongValueGoesOnAsTheNextCode)
{
    CInput input("  1\n" + QByteArray(1500, 'x') + "\n  8\nA\n");
    EXPECT_EQ(input.NextValue(), QString(999, QLatin1Char('x')));
    const CDXFTag rest = input->ReadTag();
    EXPECT_EQ(rest.code, CDXFTag::kOtherCode);
    EXPECT_EQ(input->Text(rest.value), QStringLiteral("8"));
}

TEST(TagReader, VersionDecidesTheDecoding)
{
    const CLocaleCodec codec("KOI8-R");
    const QByteArray letter("\xC1"); // U+0430 in KOI8-R, U+2534 in IBM866, half a letter in UTF-8
    const QString local(QChar(0x0430));
    const QString ibm866(QChar(0x2534));
    const QString utf8(QChar(0xFFFD));
    EXPECT_EQ(ValueOf(letter, 1006), ibm866);
    for (const int version : {-1, 0, 1005, 1007, 1009, 1012, 1014, 1015, 1018}) {
        EXPECT_EQ(ValueOf(letter, version), local) << version;
    }
    for (const int version : {1019, 1021, 1024, 1027, 1032, 9999}) {
        EXPECT_EQ(ValueOf(letter, version), utf8) << version;
    }
}

TEST(TagReader, LocalCodecIsLookedAtForEachObject)
{
    CInput input("  1\n\xE0\n  1\n\xE0\n");
    const CLocaleCodec first("windows-1251");
    input->StartObject();
    EXPECT_EQ(input.NextValue(), QString(QChar(0x0430)));
    const CLocaleCodec second("IBM866");
    input->StartObject();
    EXPECT_EQ(input.NextValue(), QString(QChar(0x0440)));
}

TEST(TagReader, TextReadBeforeTheCodecChangesKeepsItsLetters)
{
    const CLocaleCodec first("windows-1251");
    CInput input("  0\n\xE0\n");
    const CDXFTag tag = input->ReadTag();
    const CLocaleCodec second("IBM866");
    EXPECT_EQ(input->Text(tag.value), QString(QChar(0x0430)));
}

TEST(TagReader, LocalCodecDoesNotMatterToNewDrawings)
{
    CInput input("  1\n\xD0\xB0\n", kUtf8Version);
    const CLocaleCodec codec("IBM866");
    input->StartObject();
    EXPECT_EQ(input.NextValue(), QString(QChar(0x0430)));
}

TEST(TagReader, DecoderRoundTellsOfEveryChange)
{
    const CLocaleCodec first("windows-1251");
    CInput input("");
    const unsigned start = input->DecoderRound();
    input->StartObject();
    EXPECT_EQ(input->DecoderRound(), start);
    const CLocaleCodec second("IBM866");
    input->StartObject();
    const unsigned afterCodec = input->DecoderRound();
    EXPECT_NE(afterCodec, start);
    input->SetVersion(kUtf8Version);
    EXPECT_NE(input->DecoderRound(), afterCodec);
}

TEST(TagReader, NamesAreComparedWithoutRegardToCase)
{
    EXPECT_TRUE(IsNamed("LINE", "LINE"));
    EXPECT_TRUE(IsNamed("line", "LINE"));
    EXPECT_TRUE(IsNamed("3dFaCe", "3DFACE"));
    EXPECT_FALSE(IsNamed("LINES", "LINE"));
    EXPECT_FALSE(IsNamed("LIN", "LINE"));
    EXPECT_FALSE(IsNamed("", "LINE"));
    EXPECT_FALSE(IsNamed("L1NE", "LINE"));
    EXPECT_FALSE(IsNamed("[", "{")); // apart by the bit of the case, but no letters
}

TEST(TagReader, LettersBeyondAsciiAreComparedByTheirCaseToo)
{
    EXPECT_TRUE(IsNamed("END\xC5\xBF"
                        "EC",
                        "ENDSEC")); // a long s
    EXPECT_TRUE(IsNamed("ENDBL\xE2\x84\xAA", "ENDBLK")); // the Kelvin sign
    EXPECT_FALSE(IsNamed("L\xC4\xB0NE", "LINE")); // a dotted I folds to two characters
}

TEST(TagReader, NameCountsOnlyWithItsCode)
{
    CInput input("  2\nEOF\n");
    const CDXFTag tag = input->ReadTag();
    EXPECT_TRUE(input->Is(tag, 2, "EOF"));
    EXPECT_FALSE(input->Is(tag, 0, "EOF"));
}

TEST(TagReader, CodeContainsAnotherAsText)
{
    for (int number = 0; number <= 9999; ++number) {
        const QByteArray text = QByteArray::number(number);
        for (const int code : {10, 20, 30, 40, 41, 42, 72}) {
            ASSERT_EQ(Contains(text, code), text.contains(QByteArray::number(code)))
                << number << ' ' << code;
        }
    }
}

TEST(TagReader, CodeThatIsNoNumberContainsAnotherAsText)
{
    EXPECT_TRUE(Contains("020", 20));
    EXPECT_TRUE(Contains("A20", 20));
    EXPECT_TRUE(Contains("12072", 20));
    EXPECT_TRUE(Contains("-20", 20));
    EXPECT_FALSE(Contains("2 0", 20));
    EXPECT_FALSE(Contains("02", 20));
    EXPECT_FALSE(Contains("", 20));
}

TEST(TagReader, NumbersConvertAsQtConvertsTheirText)
{
    std::mt19937 random(7);
    for (int i = 0; i < 30000; ++i) {
        QByteArray text(static_cast<int>(random() % 24), '\0');
        const auto used = random() % 3 == 0 ? 18U : 12U;
        std::generate(text.begin(), text.end(),
                      [&] { return "0123456789.-eE+,; x"[random() % used]; });
        CInput input("  1\n" + text + "\n");
        const CDXFTag tag = input->ReadTag();
        const QString value = input->Text(tag.value);
        ASSERT_EQ(input->ToDouble(tag.value), value.toDouble()) << text.constData();
        ASSERT_EQ(input->ToInt(tag.value), value.toInt()) << text.constData();
    }
}

TEST(TagReader, OddNumbersConvertAsQtConvertsThem)
{
    for (const char* text : {"nan",
                             "inf",
                             "-inf",
                             "1e999",
                             "-1e-999",
                             "0x10",
                             "1,000.5",
                             "1.5 2",
                             "2147483647",
                             "2147483648",
                             "-2147483648",
                             "-2147483649",
                             "1e5",
                             "",
                             "\xC2\xA0"
                             "5",
                             "+7",
                             "--7",
                             ".",
                             ".5",
                             "5.",
                             "1e",
                             "1e+"})
    {
        CInput input(QByteArray("  1\n") + text + "\n", kUtf8Version);
        const CDXFTag tag = input->ReadTag();
        const QString value = QString::fromUtf8(text).trimmed();
        EXPECT_EQ(QByteArray::number(input->ToDouble(tag.value)),
                  QByteArray::number(value.toDouble()))
            << text;
        EXPECT_EQ(input->ToInt(tag.value), value.toInt()) << text;
    }
}

TEST(TagReader, ZeroThatStandsInNoFileIsAText)
{
    CInput input("");
    EXPECT_EQ(input->Text(kZeroSpan), QStringLiteral("0"));
    EXPECT_EQ(input->ToInt(kZeroSpan), 0);
    EXPECT_EQ(input->ToDouble(kZeroSpan), 0.0);
}

TEST(TagReader, TextsOfALongObjectStay)
{
    QByteArray bytes;
    constexpr int kGroups = 60000; // about four blocks
    for (int i = 0; i < kGroups; ++i) {
        bytes += "  1\r\nvalue " + QByteArray::number(i) + "\r\n";
    }
    CInput input(bytes);
    std::vector<CDXFTag> tags;
    while (!input->AtEnd()) {
        tags.push_back(input->ReadTag());
    }
    ASSERT_EQ(tags.size(), static_cast<std::size_t>(kGroups));
    for (int i = 0; i < kGroups; ++i) {
        ASSERT_EQ(input->Text(tags[static_cast<std::size_t>(i)].value),
                  QStringLiteral("value %1").arg(i));
    }
}

class TagReaderCodecs : public testing::TestWithParam<const char*>
{
};

TEST_P(TagReaderCodecs, RandomFilesAreReadPlainly)
{
    const CLocaleCodec codec(GetParam());
    std::mt19937 random(8);
    for (int i = 0; i < 1500; ++i) {
        const QByteArray bytes = RandomBytes(random, static_cast<int>(random() % 200));
        for (const int version : {1006, 1009, 1021}) {
            ASSERT_EQ(FirstDifference(bytes, version), "")
                << version << ' ' << bytes.toHex().constData();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, TagReaderCodecs,
                         testing::Values("windows-1251", "IBM866", "KOI8-R", "ISO-8859-1", "UTF-8",
                                         "Shift_JIS", "GB18030", "ISO-2022-JP"));

TEST(TagReader, RandomFilesOfManyBlocksAreReadPlainly)
{
    std::mt19937 random(9);
    for (const int version : {1009, 1021}) {
        EXPECT_EQ(FirstDifference(RandomBytes(random, 900000), version), "") << version;
    }
}
