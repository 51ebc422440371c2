// SPDX-License-Identifier: MIT
#include "PnrLocalCodec.h"
#include "PnrRecorder.h"
#include "SxfBuilder.h"

#include <QTemporaryDir>

using namespace SxfBuilder;

namespace {

constexpr wchar_t kCannotOpen[] = L"Не удалось открыть файл";
constexpr wchar_t kVersion[] = L"Данная версия формата не поддерживается";
constexpr wchar_t kChecksum[] = L"Контрольная сумма файла некорртна";
constexpr wchar_t kFormat[] = L"Некорректный формат файла";

CPnrResult Read(const QByteArray& file)
{
    return ReadPnr(file, false);
}

// The log of a file that is expected to be read.
std::string Log(const QByteArray& file)
{
    const CPnrResult result = Read(file);
    EXPECT_TRUE(result.result);
    EXPECT_EQ(result.message, L"");
    return result.log;
}

std::string Log(const CRecord& record)
{
    return Log(File(record));
}

void ExpectFormatFault(const CRecord& record)
{
    const CPnrResult result = Read(File(record));
    EXPECT_FALSE(result.result);
    EXPECT_EQ(result.message, kFormat);
    EXPECT_EQ(result.log, "");
}

CRecord Line(const QByteArray& metric, int vertices, quint32 flags = kDouble)
{
    CRecord record;
    record.flags = kLine | flags;
    record.code = 51;
    record.vertices = vertices;
    record.metric = metric;
    return record;
}

CRecord PlainLine()
{
    return Line(F64s({1, 2, 3, 4}), 2);
}

CRecord WithSemantics(const QByteArray& semantics)
{
    CRecord record = PlainLine();
    record.flags |= kSemantics;
    record.semantics = semantics;
    return record;
}

// "= int 5" of a file with this one attribute.
std::string ValueOf(const QByteArray& semantic)
{
    const std::string log = Log(WithSemantics(semantic));
    const std::size_t at = log.find(" = ");
    return at == std::string::npos ? log : log.substr(at + 3, log.size() - at - 4);
}

// Text block of one part: the length, the text, a zero, the alignment, padding, a zero.
QByteArray TextBlock(const QByteArray& text, int align)
{
    const QByteArray inner = text + '\0' + I8(align) + '\0';
    return I8(inner.size()) + inner + '\0';
}

CRecord Text(const QByteArray& block)
{
    CRecord record;
    record.flags = kText | kDouble;
    record.code = 77;
    record.vertices = 2;
    record.metric = F64s({1, 2, 3, 4}) + block;
    return record;
}

const char* const kTextDrawn =
    " drawn 0 4294967295 4294967295 1800 200 align 24 bytes 0 0 0 0 0 204"
    " font 'Arial'\n";
const char* const kPlainLineLog = "line 51 '51' SYSTEM\n 2D (1 2) (3 4)\n";

} // namespace

// ---- File --------------------------------------------------------------------------------------

TEST(PnrBinReader, TellsThatAFileCannotBeOpened)
{
    const CPnrResult result = ReadPnrFile(QStringLiteral("/nonexistent/map.sxf"), false);
    EXPECT_FALSE(result.result);
    EXPECT_EQ(result.message, kCannotOpen);
}

TEST(PnrBinReader, OpenTellsByItselfWhetherTheFileOpens)
{
    using namespace VelorExchange::pnr;
    const std::unique_ptr<IPnrReader, void (*)(IPnrReader*)> reader(CreateReader(false, nullptr),
                                                                    DeleteReader);
    EXPECT_EQ(reader->GetLastError(), L"");
    EXPECT_TRUE(reader->Open(QStringLiteral("/dev/null")));
    EXPECT_FALSE(reader->Open(QStringLiteral("/nonexistent/map.sxf")));
    EXPECT_EQ(reader->GetLastError(), kCannotOpen);
}

TEST(PnrBinReader, RefusesAnotherMagic)
{
    QByteArray file = File({}, 0);
    Put(file, 0, "SXG");
    MendChecksum(file);
    EXPECT_EQ(Read(file).message, kVersion);
}

TEST(PnrBinReader, RefusesAnotherVersionBeforeTheChecksum)
{
    QByteArray file = File({}, 0);
    Put(file, 8, I32(0x30000));
    const CPnrResult result = Read(file);
    EXPECT_FALSE(result.result);
    EXPECT_EQ(result.message, kVersion);
}

TEST(PnrBinReader, RefusesAnEmptyFile)
{
    EXPECT_EQ(Read({}).message, kVersion);
}

TEST(PnrBinReader, RefusesAWrongChecksum)
{
    QByteArray file = File(PlainLine());
    Put(file, 12, I32(Checksum(file) + 1));
    const CPnrResult result = Read(file);
    EXPECT_FALSE(result.result);
    EXPECT_EQ(result.message, kChecksum);
    EXPECT_EQ(result.log, "");
}

TEST(PnrBinReader, SumsBytesAsSignedOnes)
{
    QByteArray file = File(PlainLine());
    Put(file, 200, QByteArray(50, '\xFF'));
    MendChecksum(file);
    EXPECT_EQ(Log(file), kPlainLineLog);
    Put(file, 12, I32(Checksum(file) + 50 * 256));
    EXPECT_EQ(Read(file).message, kChecksum);
}

TEST(PnrBinReader, SumsBytesBehindTheLastRecordToo)
{
    QByteArray file = File(PlainLine());
    file += "rest";
    EXPECT_EQ(Read(file).message, kChecksum);
    MendChecksum(file);
    EXPECT_EQ(Log(file), kPlainLineLog);
}

TEST(PnrBinReader, ReadsNoObjectOfACountOfZero)
{
    EXPECT_EQ(Log(File(PlainLine().Bytes(), 0)), "");
}

TEST(PnrBinReader, ReadsNoObjectOfANegativeCount)
{
    EXPECT_EQ(Log(File(PlainLine().Bytes(), -1)), "");
}

TEST(PnrBinReader, ReadsAsManyRecordsAsTheCountTells)
{
    const QByteArray records = PlainLine().Bytes() + PlainLine().Bytes() + PlainLine().Bytes();
    EXPECT_EQ(Log(File(records, 2)), std::string(kPlainLineLog) + kPlainLineLog);
}

TEST(PnrBinReader, TakesAShortFileAsZerosBehindItsEnd)
{
    for (const int size : {16, 100, 400, 440, 451}) {
        QByteArray file = File({}, 0).left(size);
        MendChecksum(file);
        EXPECT_EQ(Log(file), "") << size;
    }
}

TEST(PnrBinReader, TakesAMissingChecksumAsZero)
{
    for (int size = 12; size < 16; ++size) {
        QByteArray file = File({}, 0).left(12) + QByteArray(size - 12, '\0');
        EXPECT_EQ(Read(file).message, kChecksum);
        Put(file, 6, I8(-128) + I8(128 - Checksum(file)));
        EXPECT_EQ(Log(file), "") << size;
    }
}

TEST(PnrBinReader, KeepsObjectsDeliveredBeforeAFault)
{
    const CPnrResult result = Read(File(PlainLine().Bytes() + I32(0x7FFF7FFE), 2));
    EXPECT_FALSE(result.result);
    EXPECT_EQ(result.message, kFormat);
    EXPECT_EQ(result.log, kPlainLineLog);
}

TEST(PnrBinReader, RefusesAFileWithFewerRecordsThanItsCount)
{
    const CPnrResult result = Read(File(PlainLine().Bytes(), 0x7FFFFFFF));
    EXPECT_FALSE(result.result);
    EXPECT_EQ(result.message, kFormat);
}

// ---- Record head -------------------------------------------------------------------------------

TEST(PnrBinReader, GivesNoMessageForAHeadCutShort)
{
    const QByteArray record = PlainLine().Bytes();
    for (int size = 4; size < 32; ++size) {
        const CPnrResult result = Read(File(record.left(size), 1));
        EXPECT_FALSE(result.result);
        EXPECT_EQ(result.message, L"") << size;
    }
}

TEST(PnrBinReader, RefusesAnotherMarker)
{
    QByteArray record = PlainLine().Bytes();
    Put(record, 0, I32(0x7FFF7FFD));
    EXPECT_EQ(Read(File(record, 1)).message, kFormat);
}

TEST(PnrBinReader, DeliversEachKindToItsOperation)
{
    const char* const names[] = {"line", "square", "point", "text", "point", "text"};
    for (quint32 kind = 0; kind <= 5; ++kind) {
        CRecord record = PlainLine();
        record.flags = kind | kDouble;
        if (kind == kText || kind == kMixed) {
            record.metric += TextBlock("a", 20);
        }
        const std::string log = Log(record);
        EXPECT_EQ(log.substr(0, log.find(' ')), names[kind]) << kind;
    }
}

TEST(PnrBinReader, RefusesEveryOtherKind)
{
    for (quint32 kind = 6; kind <= 15; ++kind) {
        CRecord record = PlainLine();
        record.flags = kind | kDouble;
        ExpectFormatFault(record);
    }
}

TEST(PnrBinReader, SetsTheCodeAndItsDecimalText)
{
    CRecord record = PlainLine();
    record.code = -12345;
    EXPECT_EQ(Log(record), "line -12345 '-12345' SYSTEM\n 2D (1 2) (3 4)\n");
}

TEST(PnrBinReader, KeepsCodeZeroForTexts)
{
    const std::string log = Log(Text(TextBlock("a", 20)));
    EXPECT_EQ(log.substr(0, log.find('\n')), "text 0 '' SYSTEM");
}

TEST(PnrBinReader, RefusesARecordLengthThatIsOff)
{
    for (const int error : {-100, -33, -4, -1, 1, 4, 1000}) {
        CRecord record = PlainLine();
        record.lengthError = error;
        ExpectFormatFault(record);
    }
}

TEST(PnrBinReader, RefusesAMetricLengthThatIsOff)
{
    for (const int error : {-32, -1, 1, 1000}) {
        CRecord record = PlainLine();
        record.metricError = error;
        ExpectFormatFault(record);
    }
}

TEST(PnrBinReader, RefusesBytesOfAttributesWithoutTheirFlag)
{
    CRecord record = WithSemantics(Semantic(9, 1, 0, I8(5)));
    record.flags &= ~kSemantics;
    ExpectFormatFault(record);
}

// ---- Contours ----------------------------------------------------------------------------------

TEST(PnrBinReader, ReadsEveryElementTypeInThePlan)
{
    EXPECT_EQ(Log(Line(I16(-1) + I16(2) + I16(32767) + I16(-32768), 2, kInt16)),
              "line 51 '51' SYSTEM\n 2D (-1 2) (32767 -32768)\n");
    EXPECT_EQ(Log(Line(I32(-1) + I32(2147483647), 1, kInt32)),
              "line 51 '51' SYSTEM\n 2D (-1 2147483647)\n");
    EXPECT_EQ(Log(Line(F32(0.5F) + F32(-1.25F), 1, kFloat)),
              "line 51 '51' SYSTEM\n 2D (0.5 -1.25)\n");
    EXPECT_EQ(Log(Line(F64s({0.1, -2e300}), 1, kDouble)),
              "line 51 '51' SYSTEM\n 2D (0.10000000000000001 -2.0000000000000001e+300)\n");
}

TEST(PnrBinReader, ReadsEveryElementTypeInSpace)
{
    EXPECT_EQ(Log(Line(I16(1) + I16(2) + I16(-3), 1, kInt16 | k3D)),
              "line 51 '51' SYSTEM\n 3D (1 2 -3)\n");
    EXPECT_EQ(Log(Line(F32(1) + F32(2) + F32(0.5F), 1, kFloat | k3D)),
              "line 51 '51' SYSTEM\n 3D (1 2 0.5)\n");
    EXPECT_EQ(Log(Line(F64s({1, 2, 3, 4, 5, 6}), 2, kDouble | k3D)),
              "line 51 '51' SYSTEM\n 3D (1 2 3) (4 5 6)\n");
}

TEST(PnrBinReader, ReadsHeightsOfInt32AsInt16)
{
    const QByteArray metric = I32(100000) + I32(-100000) + I16(-7) + I32(1) + I32(2) + I16(32767);
    EXPECT_EQ(Log(Line(metric, 2, kInt32 | k3D)),
              "line 51 '51' SYSTEM\n 3D (100000 -100000 -7) (1 2 32767)\n");
}

TEST(PnrBinReader, ReadsSubContoursBehindTheirHeads)
{
    CRecord record = Line(
        F64s({1, 2}) + I16(999) + I16(2) + F64s({3, 4, 5, 6}) + I16(0) + I16(1) + F64s({7, 8}), 1);
    record.subContours = 2;
    EXPECT_EQ(Log(record), "line 51 '51' SYSTEM\n 2D (1 2)\n 2D (3 4) (5 6)\n 2D (7 8)\n");
}

TEST(PnrBinReader, ReadsNoContourOfASubContourCountBelowZero)
{
    for (const int count : {-1, -2, -32768}) {
        CRecord record = Line({}, 5);
        record.subContours = count;
        EXPECT_EQ(Log(record), "line 51 '51' SYSTEM\n") << count;
    }
}

TEST(PnrBinReader, ReadsNoVerticesOfANegativeCount)
{
    EXPECT_EQ(Log(Line({}, 40000)), "line 51 '51' SYSTEM\n 2D\n");
    ExpectFormatFault(Line(QByteArray(40000 * 16, '\0'), 40000));
}

TEST(PnrBinReader, ReadsAsManyVerticesAsTheCountCanTell)
{
    const std::string log = Log(Line(QByteArray(32767 * 4, '\1'), 32767, kInt16));
    EXPECT_EQ(log.size(), std::string("line 51 '51' SYSTEM\n 2D\n").size() + 32767 * 10);
}

TEST(PnrBinReader, RefusesMoreVerticesThanTheMetricHolds)
{
    CRecord record = PlainLine();
    record.vertices = 3;
    ExpectFormatFault(record);
    record.vertices = 1;
    ExpectFormatFault(record);
}

TEST(PnrBinReader, RefusesMoreSubContoursThanTheMetricHolds)
{
    CRecord record = PlainLine();
    record.subContours = 1;
    ExpectFormatFault(record);
    record.subContours = 32767;
    ExpectFormatFault(record);
}

TEST(PnrBinReader, ConvertsCoordinatesThatAreNotReal)
{
    QByteArray file = File(Line(F64s({10, 20, 30}), 1, kDouble | k3D));
    Put(file, 96, I32(0xFFFFFFE7));
    Put(file, 60, I32(100));
    Put(file, 312, I32(3));
    Put(file, 316, I32(4));
    Put(file, 320, I32(-5));
    MendChecksum(file);
    const auto number = [](double value) { return QString::number(value, 'g', 17).toStdString(); };
    EXPECT_EQ(Log(file),
              "line 51 '51' SYSTEM\n 3D (" + number((10.0 - 4) / 3 * 100) + ' '
                  + number((20.0 + 5) / 3 * 100) + " 30)\n");
}

TEST(PnrBinReader, TakesCoordinatesAsTheyStandWithEitherFlag)
{
    for (const int flags : {0x08, 0x10, 0x18}) {
        QByteArray file = File(PlainLine());
        Put(file, 96, I32(flags));
        Put(file, 316, I32(1000));
        MendChecksum(file);
        EXPECT_EQ(Log(file), kPlainLineLog);
    }
}

TEST(PnrBinReader, DividesByADivisorOfZeroWithoutFault)
{
    QByteArray file = File(PlainLine());
    Put(file, 96, I32(0));
    Put(file, 312, I32(0));
    MendChecksum(file);
    EXPECT_EQ(Log(file), "line 51 '51' SYSTEM\n 2D (inf inf) (inf inf)\n");
}

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

// ---- Blocks of the file ------------------------------------------------------------------------

TEST(PnrBinReader, ReadsRecordsAcrossAndBeyondBlocks)
{
    QByteArray records;
    std::string expected;
    for (int i = 0; i < 9000; ++i) {
        CRecord record = PlainLine();
        record.code = i;
        records += record.Bytes();
        const std::string code = std::to_string(i);
        expected += "line " + code + " '" + code + "' SYSTEM\n 2D (1 2) (3 4)\n";
    }
    CRecord large = Line(QByteArray(30000 * 16, '\0'), 30000);
    records += large.Bytes() + PlainLine().Bytes();
    const std::string log = Log(File(records, 9002));
    EXPECT_EQ(log.substr(0, expected.size()), expected);
    EXPECT_EQ(log.substr(log.size() - std::string(kPlainLineLog).size()), kPlainLineLog);
}

TEST(PnrBinReader, PassesOnWhatTheHostThrows)
{
    using namespace VelorExchange::pnr;
    struct CThrower final : IPnrReader::IContext
    {
        void AddText(CTextObject*) override { }
        void AddSquare(CSquareObject*) override { }
        void AddLine(CLineObject*) override { throw 42; }
        void AddPoint(CPointObject*) override { }
    } thrower;
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("map.sxf")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(File(PlainLine()));
    file.close();
    const std::unique_ptr<IPnrReader, void (*)(IPnrReader*)> reader(CreateReader(false, &thrower),
                                                                    DeleteReader);
    EXPECT_THROW(reader->Read(file.fileName()), int);
}
