// SPDX-License-Identifier: MIT
#include "PnrBinWriterTest.h"

using namespace PnrBinWriterTest;

// ---- Texts -------------------------------------------------------------------------------------

TEST(PnrBinWriter, WritesATextWithoutDrawing)
{
    const auto text = PlainText(QStringLiteral(">abc"));
    text->code = 77;
    EXPECT_EQ(RecordOf(*text).toHex(' '),
              (Head(72, 40, 77, 0xFF2C0403) + I32(2) + I16(0) + I16(2) + F64s({1, 2, 3, 4}) + I8(6)
               + "abc" + '\0' + I8(24) + '\0' + '\0')
                  .toHex(' '));
}

TEST(PnrBinWriter, WritesTheDrawingOfAText)
{
    const CLocalCodec codec("UTF-8");
    const auto text = PlainText(QStringLiteral("ab"));
    text->hasOwnImage = true;
    text->image = {1, 2,  3,  4,  5,  6,  7,  25, 8,
                   9, 10, 11, 12, 13, 14, 15, 16, QStringLiteral("Шрифт")};
    EXPECT_EQ(RecordOf(*text).mid(20).toHex(' '),
              (I32(0xFF3C0403) + I32(2) + I16(0) + I16(2) + F64s({1, 2, 3, 4}) + I8(6) + "ab" + '\0'
               + I8(25) + '\0' + '\0' + '\0' + I32(0x7FFF7FFE) + I32(80) + I32(1) + I16(64)
               + I16(0x98) + I32(1) + I32(2) + I32(3) + I32(4) + I16(5) + I8(6) + I8(7) + I16(25)
               + I16(8) + I8(9) + I8(10) + I8(11) + I8(12) + I8(13) + I8(14) + I8(15) + I8(16)
               + "\xD8\xF0\xE8\xF4\xF2" + QByteArray(27, '\0'))
                  .toHex(' '));
    EXPECT_EQ(RecordOf(*text).mid(4, 8), I32(32 + 120) + I32(120));
}

TEST(PnrBinWriter, CutsTheFontNameTo32Characters)
{
    const auto text = PlainText(QStringLiteral("ab"));
    text->hasOwnImage = true;
    text->image.fontName = QString(50, QLatin1Char('f'));
    EXPECT_TRUE(RecordOf(*text).endsWith(QByteArray(1, '\0') + QByteArray(32, 'f')));
}

TEST(PnrBinWriter, CountsAMixedTextByItsFirstPartOnly)
{
    const auto text = PlainText(QStringLiteral("ab"));
    text->extraTexts = {QStringLiteral("c"), QStringLiteral("d")};
    text->extraAligns = {31};
    const QByteArray vertices = F64s({1, 2, 3, 4});
    EXPECT_EQ(RecordOf(*text).toHex(' '),
              (Head(72, 40, 0, 0xFF2C0405) + I32(2) + I16(2) + I16(2) + vertices + I8(6) + "ab"
               + '\0' + I8(24) + QByteArray(3, '\0') + I16(2) + I16(2) + vertices + I8(6) + "c"
               + '\0' + I8(31) + QByteArray(4, '\0') + I16(2) + I16(2) + vertices + I8(6) + "d"
               + '\0' + I8(24) + QByteArray(4, '\0'))
                  .toHex(' '));
}

TEST(PnrBinWriter, CountsATextInSpaceAsTwoVerticesInThePlan)
{
    CTextObject text;
    text.hasOwnImage = false;
    text.text = QStringLiteral("ab");
    text.holders.push_back(Space({{1, 2, 3}}));
    const QByteArray record = RecordOf(text);
    EXPECT_EQ(record.mid(8, 4), I32(40));
    EXPECT_EQ(record.mid(20, 12), I32(0xFF2E0403) + I32(1) + I16(0) + I16(1));
    EXPECT_EQ(record.mid(32, 24), F64s({1, 2, 3}));
}

TEST(PnrBinWriter, MakesTextBlocksAMultipleOf8)
{
    for (int size = 0; size <= 252; ++size) {
        const QByteArray block = BlockOf(QString(size, QLatin1Char('x')));
        const int length = static_cast<quint8>(block.at(0));
        ASSERT_EQ(block.size() % 8, 0) << size;
        ASSERT_EQ(block.size(), length + 2) << size;
        ASSERT_GE(length, size + 2);
        ASSERT_LT(length, size + 10);
        ASSERT_EQ(block.mid(1, size + 2), QByteArray(size, 'x') + '\0' + I8(24));
        ASSERT_EQ(block.mid(size + 3), QByteArray(length - size - 1, '\0'));
    }
}

TEST(PnrBinWriter, CutsATextToWhatItsLengthByteCanTell)
{
    const QByteArray block = BlockOf(QString(300, QLatin1Char('x')));
    EXPECT_EQ(block, I8(254) + QByteArray(252, 'x') + '\0' + I8(24) + '\0');
}

TEST(PnrBinWriter, DropsTheLastLineBreakWhereverItStands)
{
    EXPECT_EQ(BlockOf(QStringLiteral("ab\n")).mid(1, 3), QByteArray("ab\0", 3));
    EXPECT_EQ(BlockOf(QStringLiteral("a\nb\nc")).mid(1, 6), QByteArray("a\r\nbc\0", 6));
    EXPECT_EQ(BlockOf(QStringLiteral("a\nb")).mid(1, 3), QByteArray("ab\0", 3));
    EXPECT_EQ(BlockOf(QStringLiteral("a\r\nb")).mid(1, 4), QByteArray("a\rb\0", 4));
    EXPECT_EQ(BlockOf(QStringLiteral("ab\r")).mid(1, 3), QByteArray("ab\0", 3));
    EXPECT_EQ(BlockOf(QStringLiteral("a\rxb")).mid(1, 3), QByteArray("ab\0", 3));
}

TEST(PnrBinWriter, RemovesEveryAngleBracket)
{
    EXPECT_EQ(BlockOf(QStringLiteral(">a>b>")).mid(1, 3), QByteArray("ab\0", 3));
}

TEST(PnrBinWriter, WritesTextsInOneByteACharacter)
{
    const CLocalCodec codec("UTF-8");
    EXPECT_EQ(BlockOf(QStringLiteral("Ж漢")).left(4), I8(6) + "\xC6?" + '\0');
}

// ---- Attributes --------------------------------------------------------------------------------

namespace {

QByteArray SemanticsOf(std::vector<PnrSemantic> semantics)
{
    const auto line = PlainLine();
    line->semantics = std::move(semantics);
    const QByteArray record = RecordOf(*line);
    EXPECT_EQ(record.mid(4, 8), I32(record.size()) + I32(32));
    EXPECT_EQ(record.mid(20, 4), I32(0xFF240600));
    return record.mid(64);
}

} // namespace

TEST(PnrBinWriter, WritesEveryTypeOfAttribute)
{
    EXPECT_EQ(
        SemanticsOf({Attribute(1, 1, -5, 3), Attribute(2, 2, 30000, 254), Attribute(3, 4, -100000),
                     Attribute(4, 8, 0.25, 7), Attribute(0xFFFE, 126, QStringLiteral("abc"), 3)})
            .toHex(' '),
        (Semantic(1, 1, 3, I8(-5)) + Semantic(2, 2, -2, I16(30000))
         + Semantic(3, 4, 0, I32(-100000)) + Semantic(4, 8, 7, F64(0.25))
         + Semantic(0xFFFE, 126, 4, QByteArray("abc\0\0", 5)))
            .toHex(' '));
}

TEST(PnrBinWriter, WritesNothingForOtherTypesOfAttribute)
{
    EXPECT_EQ(SemanticsOf({Attribute(1, 0, QStringLiteral("a")), Attribute(2, 127, 1),
                           Attribute(3, -1, 2), Attribute(4, 3, 2), Attribute(5, 256 + 4, 2)}),
              QByteArray());
}

TEST(PnrBinWriter, WritesDatesByTheirDigits)
{
    EXPECT_EQ(SemanticsOf({Attribute(1, 126, QDate(2024, 2, 29), 8, 17)}),
              Semantic(1, 126, 9, QByteArray("20240229\0\0", 10)));
    EXPECT_EQ(SemanticsOf({Attribute(1, 126, QStringLiteral("no date"), 0, 17)}),
              Semantic(1, 126, 1, QByteArray(2, '\0')));
}

TEST(PnrBinWriter, WritesTextsOfAttributesOnOneLine)
{
    EXPECT_EQ(SemanticsOf({Attribute(1, 126, QStringLiteral("a\nb\r\nc"), 6)}),
              Semantic(1, 126, 7, QByteArray("a b\r c\0\0", 8)));
}

TEST(PnrBinWriter, CutsTextsOfAttributesTo255Characters)
{
    EXPECT_EQ(SemanticsOf({Attribute(1, 126, QString(300, QLatin1Char('x')), 254)}),
              Semantic(1, 126, -1, QByteArray(255, 'x') + QByteArray(2, '\0')));
}

TEST(PnrBinWriter, CutsIntegersToTheirType)
{
    EXPECT_EQ(SemanticsOf({Attribute(1, 1, 0x1234), Attribute(2, 2, 0x12345678),
                           Attribute(3, 4, QStringLiteral("12.5"))}),
              Semantic(1, 1, 0, I8(0x34)) + Semantic(2, 2, 0, I16(0x5678))
                  + Semantic(3, 4, 0, I32(0)));
}

TEST(PnrBinWriter, TakesValuesOfEveryKind)
{
    const QVariant values[] = {QVariant(),
                               true,
                               -7,
                               7U,
                               qint64{1} << 40,
                               quint64{1} << 63,
                               0.5,
                               1.5F,
                               QChar(u'x'),
                               QStringLiteral("text"),
                               QByteArray("bytes"),
                               QDate(2024, 1, 2),
                               QTime(3, 4),
                               QDateTime(QDate(2024, 1, 2), QTime(3, 4)),
                               QStringList{QStringLiteral("one")},
                               QVariantList{1, 2},
                               QVariantMap{},
                               QRectF(1, 2, 3, 4)};
    const int sizes[] = {1, 2, 4, 8};
    for (const QVariant& value : values) {
        for (const int type : sizes) {
            EXPECT_EQ(SemanticsOf({Attribute(1, type, value)}).size(), 4 + type)
                << value.typeName();
        }
        EXPECT_EQ(SemanticsOf({Attribute(1, 126, value)}).size(), 4 + value.toString().size() + 2)
            << value.typeName();
    }
}

TEST(PnrBinWriter, SetsTheFlagOfAttributesEvenIfNoneIsWritten)
{
    const auto line = PlainLine();
    line->semantics = {Attribute(1, -1, 5)};
    EXPECT_EQ(RecordOf(*line).mid(20, 4), I32(0xFF240600));
}
