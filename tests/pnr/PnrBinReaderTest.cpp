// SPDX-License-Identifier: MIT
#include "PnrBinReaderTest.h"

#include <QTemporaryDir>

using namespace PnrBinReaderTest;

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
