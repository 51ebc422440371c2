// SPDX-License-Identifier: MIT
// What the tool reads beside the library stays in step with it, or stays out of the way, whatever the file.
#include "tests/support/SxfBuilder.h"
#include "tests/tools/SxfToSxf.h"

#include <algorithm>

namespace velorx::test {

namespace {

using namespace SxfBuilder;

using SxfReadingFaults = SxfToSxf;

QByteArray Mark()
{
    return SxfBuilder::Drawing(
        0x8F, I32(152) + I32(1) + I32(4000) + I32(0) + I32(0) + I32(255) + QByteArray(128, '\x0F'));
}

// A mixed text, a point with a mark and a thin line, each with all that is looked at.
QByteArray BinaryMap()
{
    CRecord text;
    text.flags = kMixed | kDouble | SxfBuilder::kSemantics | kDrawing;
    text.code = 8;
    text.vertices = 2;
    text.subContours = 1;
    text.metric = F64s({1, 2, 1, 8}) + I8(6) + QByteArray("a\0\x1F\0\0\0\0", 7) + I16(0) + I16(2)
        + F64s({3, 2, 3, 8}) + I8(6) + QByteArray("b\0\x1C\0\0\0\0", 7)
        + SxfBuilder::Drawing(0x98, QByteArray(64, '\1'));
    text.semantics = Semantic(4, 1, 0, I8(9));
    CRecord point;
    point.flags = kPoint | kInt16 | kDrawing;
    point.vertices = 1;
    point.metric = I16(7) + I16(80) + Mark();
    CRecord line;
    line.flags = kLine | kFloat | k3D | kDrawing;
    line.vertices = 1;
    line.metric = F32(1) + F32(2) + F32(3) + SxfBuilder::Drawing(0x80, I32(9) + I32(250));
    return File(text.Bytes() + point.Bytes() + line.Bytes(), 3);
}

constexpr char kTextMap[] =
    ".SIT 4.0\nP001 Map\n.DAT 3\n.OBJ 7 MIX\n.ALG LEFT TOP 0\n.MET 1\n2\n1 2\n1 8\n"
    ">a\n2\n1 2\n1 8\n>b\n.OBJ 0 DOT\n1\n1 2\n.IMG 1\n_MARK 5\nSIZE 3000\n"
    "COLOR 77\nBITS 32\n 1 1\n.OBJ 0 LIN\n2\n1 2\n3 4\n.SEM 1\n9 x\n.END\n";

// Vertices on the way, so that a log of them means that what was read is handed over.
std::size_t Objects(const std::string& log)
{
    return static_cast<std::size_t>(std::count(log.begin(), log.end(), '('));
}

} // namespace

TEST_F(SxfReadingFaults, EveryPrefixOfABinaryMapIsRead)
{
    const QByteArray map = BinaryMap();
    std::size_t before = 0;
    for (int size = 452; size <= map.size(); ++size) {
        QByteArray prefix = map.left(size);
        MendChecksum(prefix);
        const std::size_t objects = Objects(Read(prefix));
        EXPECT_GE(objects, before) << size;
        before = objects;
    }
    EXPECT_EQ(before, 6U);
}

TEST_F(SxfReadingFaults, EveryPrefixOfATextMapIsRead)
{
    const QByteArray map = kTextMap;
    for (int size = 0; size <= map.size(); ++size) {
        Read(map.left(size));
    }
    EXPECT_EQ(Objects(Read(map)), 5U);
}

TEST_F(SxfReadingFaults, AnyByteOfARecordMayBeOff)
{
    const QByteArray map = BinaryMap();
    std::size_t read = 0;
    for (int at = 452; at < map.size(); ++at) {
        for (const char value : {'\0', '\x7F', '\xFF'}) {
            QByteArray odd = map;
            odd[at] = value;
            MendChecksum(odd);
            read += Objects(Read(odd)) > 0 ? 1 : 0;
        }
    }
    EXPECT_GT(read, 500U) << "most of them leave the records ahead alone";
}

TEST_F(SxfReadingFaults, ConvertedMapCanBeReadWhateverTheSource)
{
    const QByteArray map = BinaryMap();
    for (int at = 452; at < map.size(); at += 7) {
        QByteArray odd = map;
        odd[at] = '\x7F';
        MendChecksum(odd);
        for (const bool isText : {false, true}) {
            const SConverted result = Convert(odd, isText);
            EXPECT_EQ(result.log.find("Некорректный"), std::string::npos) << at << result.log;
        }
    }
}

TEST_F(SxfReadingFaults, DetailsStayWithTheirObjectsBehindABrokenDrawing)
{
    CRecord point;
    point.flags = kPoint | kInt16 | kDrawing;
    point.vertices = 1;
    point.metric = I16(7) + I16(80) + I32(0x7FFF7FFE) + I32(16) + I32(99) + I16(-5) + I16(0x8F);
    CRecord text;
    text.flags = kText | kDouble;
    text.code = 8;
    text.vertices = 2;
    text.metric = F64s({1, 2, 1, 8}) + I8(6) + QByteArray("a\0\x1F\0\0\0\0", 7);
    const std::string log = Read(File(point.Bytes() + text.Bytes(), 2));
    EXPECT_NE(log.find("text 8 SYSTEM 'a' 31 | (1 2) (1 8)\n"), std::string::npos) << log;
}

} // namespace velorx::test
