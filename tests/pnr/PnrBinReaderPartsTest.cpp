// SPDX-License-Identifier: MIT
#include "PnrBinReaderTest.h"

using namespace PnrBinReaderTest;

// ---- Texts -------------------------------------------------------------------------------------

TEST(PnrBinReader, KeepsTheAlignmentAsLastCharacterOfATextPart)
{
    EXPECT_EQ(Log(Text(TextBlock("abc", 24))),
              std::string("text 0 '' SYSTEM\n '>abc\\x18' own 1 extra 0 0\n") + kTextDrawn
                  + " 2D (1 2) (3 4)\n");
}

TEST(PnrBinReader, JoinsThePartsOfAMixedText)
{
    CRecord record =
        Text(TextBlock("ab", 20) + I16(2) + I16(1) + F64s({5, 6}) + TextBlock("cd", 31));
    record.flags = kMixed | kDouble;
    record.subContours = 1;
    EXPECT_EQ(Log(record),
              std::string("text 0 '' SYSTEM\n '>ab\\x14>cd\\x1f' own 1 extra 0 0\n") + kTextDrawn
                  + " 2D (1 2) (3 4)\n 2D (5 6)\n");
}

TEST(PnrBinReader, DecodesTextsByTheLocalCodec)
{
    const CLocalCodec codec("IBM866");
    EXPECT_NE(Log(Text(TextBlock("\x8A\xA0", 20))).find("'>Ка\\x14'"), std::string::npos);
}

TEST(PnrBinReader, DecodesTextsAsWindows1251WhereTheLocalCodecIsOfSeveralBytes)
{
    const CLocalCodec codec("UTF-8");
    EXPECT_NE(Log(Text(TextBlock("\xCA\xE0", 20))).find("'>Ка\\x14'"), std::string::npos);
}

TEST(PnrBinReader, TakesTheTextLengthAsUnsigned)
{
    const QByteArray block = QByteArray("\xFF") + QByteArray(256, 'x');
    EXPECT_NE(Log(Text(block)).find("'>" + std::string(256, 'x') + "'"), std::string::npos);
}

TEST(PnrBinReader, ReadsATextOfLengthZero)
{
    EXPECT_NE(Log(Text(QByteArray(2, '\0'))).find(" '>' own"), std::string::npos);
}

TEST(PnrBinReader, RefusesATextLengthBeyondTheRecord)
{
    ExpectFormatFault(Text(QByteArray("\x05") + "abc"));
    ExpectFormatFault(Text({}));
}

// ---- Drawing -----------------------------------------------------------------------------------

namespace {

CRecord Drawn(quint32 kind, const QByteArray& block)
{
    CRecord record = PlainLine();
    record.flags = kind | kDouble | kDrawing;
    record.metric += block;
    return record;
}

std::string DrawnLog(quint32 kind, const QByteArray& block)
{
    const std::string log = Log(Drawn(kind, block));
    return log.substr(0, log.rfind(" 2D"));
}

} // namespace

TEST(PnrBinReader, ReadsTheDrawingOfALine)
{
    EXPECT_EQ(DrawnLog(kLine, Drawing(0x80, I32(255) + I32(3000))),
              "line 51 '51' SYSTEM image\n color 255 thickness 3000\n");
    EXPECT_EQ(DrawnLog(kLine, Drawing(0x81, I32(-1) + I32(5000) + I32(7) + I32(8))),
              "line 51 '51' SYSTEM image\n color -1 thickness 5000\n");
}

TEST(PnrBinReader, CutsTheThicknessOfALineToAWholeThousand)
{
    EXPECT_EQ(DrawnLog(kLine, Drawing(0x80, I32(0) + I32(1999))),
              "line 51 '51' SYSTEM image\n color 0 thickness 1000\n");
    EXPECT_EQ(DrawnLog(kLine, Drawing(0x80, I32(0) + I32(-1999))),
              "line 51 '51' SYSTEM image\n color 0 thickness -1000\n");
}

TEST(PnrBinReader, ReadsTheDrawingOfAnArea)
{
    EXPECT_EQ(DrawnLog(kSquare, Drawing(0x87, I32(0x123456))),
              "square 51 '51' SYSTEM image\n color 1193046\n");
}

TEST(PnrBinReader, PassesOverTheDrawingOfAPoint)
{
    EXPECT_EQ(DrawnLog(kPoint, Drawing(0x8F, QByteArray(152, 'x'))), "point 51 '51' SYSTEM\n");
    EXPECT_EQ(DrawnLog(kPoint, I32(0x7FFF7FFE) + I32(8)), "point 51 '51' SYSTEM\n");
}

TEST(PnrBinReader, DropsTheDrawingOfAText)
{
    for (const int type : {0x8E, 0x98}) {
        CRecord record = Text(TextBlock("a", 20));
        record.flags |= kDrawing;
        record.metric += Drawing(type, QByteArray(type == 0x8E ? 32 : 64, 'x'));
        EXPECT_EQ(Log(record),
                  std::string("text 0 '' SYSTEM\n '>a\\x14' own 1 extra 0 0\n") + kTextDrawn
                      + " 2D (1 2) (3 4)\n");
    }
}

TEST(PnrBinReader, ReadsATextDrawingWhoseElementLeavesOutItsOwnHead)
{
    CRecord record = Text(TextBlock("a", 20));
    record.flags |= kDrawing;
    record.metric += I32(0x7FFF7FFE) + I32(80) + I32(1) + I16(64) + I16(0x98) + QByteArray(64, 'x');
    EXPECT_NE(Log(record), "");
}

TEST(PnrBinReader, PassesOverOtherElementsByTheirLength)
{
    const QByteArray elements = I16(4) + I16(0x55) + I16(9) + I16(0x87) + "abcde" + I16(12)
        + I16(0x80) + I32(1) + I32(2000);
    EXPECT_EQ(DrawnLog(kLine, I32(0x7FFF7FFE) + I32(12 + elements.size()) + I32(3) + elements),
              "line 51 '51' SYSTEM image\n color 1 thickness 2000\n");
}

TEST(PnrBinReader, SetsNoDrawingWithoutAKnownElement)
{
    EXPECT_EQ(DrawnLog(kLine, Drawing(0x87, I32(1))), "line 51 '51' SYSTEM\n");
    EXPECT_EQ(DrawnLog(kSquare, Drawing(0x80, I32(1) + I32(2))), "square 51 '51' SYSTEM\n");
}

TEST(PnrBinReader, RefusesADrawingElementShorterThanItsHead)
{
    for (const int length : {3, 0, -1, -32768}) {
        const QByteArray block = I32(0x7FFF7FFE) + I32(16) + I32(1) + I16(length) + I16(0x55);
        ExpectFormatFault(Drawn(kLine, block));
    }
}

TEST(PnrBinReader, RefusesAnotherDrawingMarker)
{
    QByteArray block = Drawing(0x80, I32(1) + I32(2));
    Put(block, 0, I32(0x7FFF7FFD));
    ExpectFormatFault(Drawn(kLine, block));
    ExpectFormatFault(Drawn(kPoint, block));
}

TEST(PnrBinReader, RefusesADrawingLengthThatIsOff)
{
    for (const int length : {0, 8, 23, 25, -1, 0x7FFFFFFF}) {
        QByteArray block = Drawing(0x80, I32(1) + I32(2));
        Put(block, 4, I32(length));
        ExpectFormatFault(Drawn(kLine, block));
        ExpectFormatFault(Drawn(kPoint, block));
    }
}

TEST(PnrBinReader, RefusesAnElementCountThatIsOff)
{
    for (const int count : {0, 2, -1, 0x7FFFFFFF}) {
        QByteArray block = Drawing(0x80, I32(1) + I32(2));
        Put(block, 8, I32(count));
        ExpectFormatFault(Drawn(kLine, block));
    }
}

TEST(PnrBinReader, SkipsTheExtraBlock)
{
    CRecord record = PlainLine();
    record.flags |= kExtra;
    record.metric += I32(0x7FFF7FFD) + I32(9) + "abcde";
    EXPECT_EQ(Log(record), kPlainLineLog);
}

TEST(PnrBinReader, SkipsTheExtraBlockBehindTheDrawing)
{
    CRecord record = Drawn(kSquare, Drawing(0x87, I32(3)) + I32(0x7FFF7FFD) + I32(4));
    record.flags |= kExtra;
    EXPECT_EQ(Log(record), "square 51 '51' SYSTEM image\n color 3\n 2D (1 2) (3 4)\n");
}

TEST(PnrBinReader, RefusesAnExtraBlockThatIsOff)
{
    for (const int length : {0, 3, -4, 8, 10, 0x7FFFFFFF}) {
        CRecord record = PlainLine();
        record.flags |= kExtra;
        record.metric += I32(0x7FFF7FFD) + I32(length) + "abcde";
        ExpectFormatFault(record);
    }
    CRecord record = PlainLine();
    record.flags |= kExtra;
    record.metric += I32(0x7FFF7FFE) + I32(9) + "abcde";
    ExpectFormatFault(record);
}

// ---- Attributes --------------------------------------------------------------------------------

TEST(PnrBinReader, ReadsAnAttributeWithItsCodeTypeAndScale)
{
    EXPECT_EQ(Log(WithSemantics(Semantic(0xFFFE, 2, 0, I16(-300)) + Semantic(4, 1, 0, I8(7)))),
              std::string(kPlainLineLog) + " semantic 65534 kind -1 type 2 scale 0 = int -300\n"
                  + " semantic 4 kind -1 type 1 scale 0 = int 7\n");
}

TEST(PnrBinReader, KeepsNumbersWithoutScaleAsTheyAre)
{
    EXPECT_EQ(ValueOf(Semantic(9, 1, 0, I8(-128))), "int -128");
    EXPECT_EQ(ValueOf(Semantic(9, 2, 0, I16(32767))), "int 32767");
    EXPECT_EQ(ValueOf(Semantic(9, 4, 0, I32(-2147483648LL))), "int -2147483648");
    EXPECT_EQ(ValueOf(Semantic(9, 8, 0, F64(0.5))), "double 0.5");
}

TEST(PnrBinReader, ScalesNumbersByASignedPowerOfTen)
{
    EXPECT_EQ(ValueOf(Semantic(9, 1, 2, I8(-5))), "double -500");
    EXPECT_EQ(ValueOf(Semantic(9, 2, -2, I16(150))), "double 1.5");
    EXPECT_EQ(ValueOf(Semantic(9, 4, 9, I32(2147483647))), "double 2.147483647e+18");
    EXPECT_EQ(ValueOf(Semantic(9, 8, -1, F64(25))), "double 2.5");
}

TEST(PnrBinReader, KeepsTheRawByteOfANegativeScale)
{
    EXPECT_NE(Log(WithSemantics(Semantic(9, 2, -2, I16(150)))).find("scale 254 "),
              std::string::npos);
}

TEST(PnrBinReader, ReadsAsciiTextAsLatin1)
{
    const CLocalCodec codec("windows-1251");
    EXPECT_EQ(ValueOf(Semantic(9, 0, 3, QByteArray("a\xE9z\0", 4))), "QString aéz");
}

TEST(PnrBinReader, ReadsLocalTextByTheLocalCodec)
{
    const CLocalCodec codec("UTF-8");
    EXPECT_EQ(ValueOf(Semantic(9, 126, 2, QByteArray("\xCA\xE0\0", 3))), "QString Ка");
}

TEST(PnrBinReader, KeepsExactlyAsManyCharactersAsTheScale)
{
    EXPECT_EQ(ValueOf(Semantic(9, 126, 4, QByteArray("a\0bc!", 5))), "QString a\\x00bc");
    EXPECT_EQ(ValueOf(Semantic(9, 0, 2, QByteArray("a\0b", 3))), "QString a\\x00");
    EXPECT_EQ(ValueOf(Semantic(9, 126, 0, QByteArray("x", 1))), "QString ");
    EXPECT_EQ(ValueOf(Semantic(9, 126, -1, QByteArray(256, 'y'))),
              "QString " + std::string(255, 'y'));
}

TEST(PnrBinReader, ReadsUtf16TextUpToItsTerminator)
{
    EXPECT_EQ(ValueOf(Semantic(9, 127, 6, I16(0x41A) + I16(0x430) + I16(0) + I16(0x58))),
              "QString Ка");
    EXPECT_EQ(ValueOf(Semantic(9, 127, 2, I16(0x41A) + I16(0x430))), "QString Ка");
    EXPECT_EQ(ValueOf(Semantic(9, 127, 1, I16(0x41A) + "x")), "QString К");
}

TEST(PnrBinReader, RefusesEveryOtherTypeOfAttribute)
{
    for (int type = 0; type < 256; ++type) {
        const QByteArray known("\0\1\2\4\10\176\177", 7);
        if (!known.contains(static_cast<char>(type))) {
            ExpectFormatFault(WithSemantics(Semantic(9, type, 0, QByteArray(8, '\0'))));
        }
    }
}

TEST(PnrBinReader, TakesTheLayerFromItsAttribute)
{
    const QByteArray layer = Semantic(0x802A, 126, 3, QByteArray("abc\0", 4));
    EXPECT_EQ(Log(WithSemantics(layer)),
              "line 51 '51' abc\n 2D (1 2) (3 4)\n"
              " semantic 32810 kind -1 type 126 scale 3 = QString abc\n");
    const std::string log = Log(WithSemantics(Semantic(0x802A, 4, 0, I32(17))));
    EXPECT_EQ(log.substr(0, log.find('\n')), "line 51 '51' 17");
}

TEST(PnrBinReader, TakesTheLayerOfATextFromItsAttributeToo)
{
    CRecord record = Text(TextBlock("a", 20));
    record.flags |= kSemantics;
    record.semantics = Semantic(0x802A, 126, 1, QByteArray("L\0", 2));
    const std::string log = Log(record);
    EXPECT_EQ(log.substr(0, log.find('\n')), "text 0 '' L");
}

TEST(PnrBinReader, RefusesAnAttributeBeyondTheRecord)
{
    ExpectFormatFault(WithSemantics(Semantic(9, 126, 5, "abc")));
    ExpectFormatFault(WithSemantics(Semantic(9, 8, 0, I32(1))));
    ExpectFormatFault(WithSemantics("abc"));
    ExpectFormatFault(WithSemantics(Semantic(9, 127, -1, "abc")));
}

// An attribute may not reach into the next record even though the bytes are there.
TEST(PnrBinReader, RefusesAnAttributeThatReachesIntoTheNextRecord)
{
    const CRecord first = WithSemantics(Semantic(9, 8, 0, I32(1)));
    const CPnrResult result = Read(File(first.Bytes() + PlainLine().Bytes(), 2));
    EXPECT_FALSE(result.result);
    EXPECT_EQ(result.message, kFormat);
    EXPECT_EQ(result.log, "");
}

TEST(PnrBinReader, ReadsAnEmptyListOfAttributes)
{
    EXPECT_EQ(Log(WithSemantics({})), kPlainLineLog);
}
