// SPDX-License-Identifier: MIT
#include "PnrRecorder.h"
#include "SxfBuilder.h"

using namespace SxfBuilder;

namespace {

constexpr wchar_t kFormat[] = L"Некорректный формат файла";

CRecord Line()
{
    CRecord record;
    record.flags = kLine | kDouble | kDrawing | kExtra | kSemantics;
    record.code = 1;
    record.vertices = 2;
    record.subContours = 1;
    record.metric = F64s({1, 2, 3, 4}) + I16(1) + I16(1) + F64s({5, 6})
        + Drawing(0x80, I32(255) + I32(1000)) + I32(0x7FFF7FFD) + I32(8) + "abcd";
    record.semantics = Semantic(9, 4, 0, I32(7)) + Semantic(10, 126, 3, QByteArray("abc\0", 4));
    return record;
}

CRecord Text()
{
    CRecord record;
    record.flags = kMixed | kFloat | k3D | kDrawing | kSemantics;
    record.vertices = 1;
    record.subContours = 1;
    const QByteArray part = F32(1) + F32(2) + F32(3) + I8(6) + QByteArray("ab\0\x18\0\0\0", 7);
    record.metric = part + I16(1) + I16(1) + part + Drawing(0x98, QByteArray(64, 'x'));
    record.semantics = Semantic(9, 127, 2, I16(0x41) + I16(0));
    return record;
}

CRecord Point()
{
    CRecord record;
    record.flags = kVector | kInt32 | k3D | kDrawing;
    record.vertices = 2;
    record.metric =
        I32(1) + I32(2) + I16(3) + I32(4) + I32(5) + I16(6) + Drawing(0x8F, QByteArray(20, 'x'));
    return record;
}

QByteArray SampleRecords()
{
    return Line().Bytes() + Text().Bytes() + Point().Bytes();
}

bool IsPrefix(const std::string& part, const std::string& whole)
{
    return whole.compare(0, part.size(), part) == 0;
}

// A field of the first record at an offset behind the header.
struct CField
{
    const char* name;
    int offset;
    int size;
};

const CField kLineFields[] = {
    {"record length", 4, 4},
    {"metric length", 8, 4},
    {"flags", 20, 4},
    {"sub-contour count", 28, 2},
    {"vertex count", 30, 2},
    {"sub-contour's vertex count", 66, 2},
    {"drawing's length", 88, 4},
    {"drawing's element count", 92, 4},
    {"element's length", 96, 2},
    {"extra block's length", 112, 4},
    {"type of the attribute", 122, 1},
    {"text's length", 131, 1},
};
const CField kTextFields[] = {
    {"record length", 4, 4},
    {"metric length", 8, 4},
    {"flags", 20, 4},
    {"sub-contour count", 28, 2},
    {"vertex count", 30, 2},
    {"length of the first part", 44, 1},
    {"vertex count of the second", 54, 2},
    {"length of the second part", 68, 1},
    {"drawing's length", 80, 4},
    {"drawing's element count", 84, 4},
    {"element's length", 88, 2},
    {"text's length", 159, 1},
};
const CField kPointFields[] = {
    {"record length", 4, 4},      {"metric length", 8, 4}, {"flags", 20, 4},
    {"sub-contour count", 28, 2}, {"vertex count", 30, 2}, {"drawing's length", 56, 4},
};
constexpr qint64 kValues[] = {0, 1, -1, 0x7FFF, 0x8000, 0x7FFFFFFF};

QByteArray Bytes(qint64 value, int size)
{
    return I32(value).left(size);
}

template <std::size_t N>
void ExpectFaults(const CRecord& record, const CField (&fields)[N])
{
    const QByteArray good = File(record);
    ASSERT_TRUE(ReadPnr(good, false).result);
    for (const CField& field : fields) {
        for (const qint64 value : kValues) {
            QByteArray file = good;
            Put(file, 452 + field.offset, Bytes(value, field.size));
            // What a text's drawing has within its element plays no part: only that it isn't short.
            if (file == good || (QByteArray(field.name) == "element's length" && (value == 0x7FFF)))
            {
                continue;
            }
            MendChecksum(file);
            const CPnrResult result = ReadPnr(file, false);
            EXPECT_FALSE(result.result) << field.name << ' ' << value;
            EXPECT_EQ(result.message, kFormat) << field.name << ' ' << value;
            EXPECT_EQ(result.log, "") << field.name << ' ' << value;
        }
    }
}

} // namespace

TEST(PnrRobustness, EveryLengthCountAndFlagOfALineThatIsOffIsAFault)
{
    ExpectFaults(Line(), kLineFields);
}

TEST(PnrRobustness, EveryLengthCountAndFlagOfATextThatIsOffIsAFault)
{
    ExpectFaults(Text(), kTextFields);
}

TEST(PnrRobustness, EveryLengthCountAndFlagOfAPointThatIsOffIsAFault)
{
    ExpectFaults(Point(), kPointFields);
}

TEST(PnrRobustness, AnyValueAnywhereInARecordLeavesTheRecordsBeforeItAlone)
{
    const QByteArray first = Line().Bytes();
    const std::string firstLog = ReadPnr(File(Line()), false).log;
    const QByteArray records = first + SampleRecords();
    const QByteArray good = File(records, 4);
    for (int offset = 452 + first.size(); offset < good.size(); ++offset) {
        for (const qint64 value : kValues) {
            for (const int size : {1, 2, 4}) {
                QByteArray file = good;
                Put(file, offset, Bytes(value, std::min(size, good.size() - offset)));
                MendChecksum(file);
                const CPnrResult result = ReadPnr(file, false);
                ASSERT_TRUE(IsPrefix(firstLog, result.log)) << offset;
                ASSERT_EQ(result.message, result.result ? L"" : kFormat) << offset;
            }
        }
    }
}

TEST(PnrRobustness, AnyValueAnywhereInTheHeaderIsReadOrTold)
{
    const QByteArray good = File(SampleRecords(), 3);
    for (int offset = 0; offset < 452; ++offset) {
        for (const qint64 value : kValues) {
            QByteArray file = good;
            Put(file, offset, Bytes(value, std::min(4, 452 - offset)));
            MendChecksum(file);
            const CPnrResult result = ReadPnr(file, false);
            ASSERT_EQ(result.message.empty(), result.result) << offset << ' ' << value;
        }
    }
}

TEST(PnrRobustness, ABinaryFileCutAnywhereIsAFault)
{
    const QByteArray whole = File(SampleRecords(), 3);
    const std::string log = ReadPnr(whole, false).log;
    for (int size = 0; size < whole.size(); ++size) {
        EXPECT_FALSE(ReadPnr(whole.left(size), false).result && size > 444) << size;
        QByteArray mended = whole.left(size);
        MendChecksum(mended);
        const CPnrResult result = ReadPnr(mended, false);
        // Up to the record count itself the file reads as one without records.
        ASSERT_EQ(result.result, size >= 16 && size <= 440) << size;
        ASSERT_TRUE(IsPrefix(result.log, log)) << size;
    }
}

TEST(PnrRobustness, ATextFileCutAnywhereEnds)
{
    const QByteArray whole =
        ".SXF 4.0\n.DAT 3\n.OBJ 0 LIN\n.MET 1\n2\n1.5 2\n3 4\n1\n5 6\n.SEM 1\n"
        "9 x y\n.IMG 1\n_LINE 2\nCOLOR 1\nTHICK 1000\n.OBJ 0 TIT\n.ALG LEFT 0\n"
        "2\n1 2\n3 4\n>abc\n.IMG 1\n_TEXT 13\nCOLOR 1\nNAME Arial\n"
        ".OBJ 5 DOT\n1\n1 2 3\n.END\n";
    const CPnrResult good = ReadPnr(whole, true);
    ASSERT_TRUE(good.result);
    const int lastObject = whole.indexOf("1 2 3");
    for (int size = 0; size < whole.size(); ++size) {
        const CPnrResult result = ReadPnr(whole.left(size), true);
        const bool nothingDeclared = size < whole.indexOf(".DAT 3") + 6;
        ASSERT_EQ(result.result, nothingDeclared || size > lastObject) << size;
        ASSERT_EQ(result.message, result.result ? L"" : kFormat) << size;
    }
}

TEST(PnrRobustness, AnyByteAnywhereInATextFileIsReadOrTold)
{
    const QByteArray whole = ".DAT 2\n.OBJ 0 LIN\n.MET 1\n2\n1.5 2\n3 4\n1\n5 6\n.SEM 1\n9 x\n"
                             ".OBJ 0 TIT\n2\n1 2\n3 4\n>a\n.IMG 1\n_TEXT 13\nCOLOR 1\n.END\n";
    for (int offset = 0; offset < whole.size(); ++offset) {
        for (const char c : {'\0', '\n', ' ', '-', '9', '.', '>', '\xFF'}) {
            QByteArray file = whole;
            file[offset] = c;
            const CPnrResult result = ReadPnr(file, true);
            ASSERT_EQ(result.message, result.result ? L"" : kFormat) << offset << ' ' << c;
        }
    }
}
