// SPDX-License-Identifier: MIT
#pragma once

#include "PnrLocalCodec.h"
#include "PnrRecorder.h"
#include "SxfBuilder.h"

/// What the tests of reading binary maps share: records to read, and the log of what came of them.
namespace PnrBinReaderTest {

using namespace SxfBuilder;

inline constexpr wchar_t kCannotOpen[] = L"Не удалось открыть файл";
inline constexpr wchar_t kVersion[] = L"Данная версия формата не поддерживается";
inline constexpr wchar_t kChecksum[] = L"Контрольная сумма файла некорртна";
inline constexpr wchar_t kFormat[] = L"Некорректный формат файла";

inline CPnrResult Read(const QByteArray& file)
{
    return ReadPnr(file, false);
}

// The log of a file that is expected to be read.
inline std::string Log(const QByteArray& file)
{
    const CPnrResult result = Read(file);
    EXPECT_TRUE(result.result);
    EXPECT_EQ(result.message, L"");
    return result.log;
}

inline std::string Log(const CRecord& record)
{
    return Log(File(record));
}

inline void ExpectFormatFault(const CRecord& record)
{
    const CPnrResult result = Read(File(record));
    EXPECT_FALSE(result.result);
    EXPECT_EQ(result.message, kFormat);
    EXPECT_EQ(result.log, "");
}

inline CRecord Line(const QByteArray& metric, int vertices, quint32 flags = kDouble)
{
    CRecord record;
    record.flags = kLine | flags;
    record.code = 51;
    record.vertices = vertices;
    record.metric = metric;
    return record;
}

inline CRecord PlainLine()
{
    return Line(F64s({1, 2, 3, 4}), 2);
}

inline CRecord WithSemantics(const QByteArray& semantics)
{
    CRecord record = PlainLine();
    record.flags |= kSemantics;
    record.semantics = semantics;
    return record;
}

// "= int 5" of a file with this one attribute.
inline std::string ValueOf(const QByteArray& semantic)
{
    const std::string log = Log(WithSemantics(semantic));
    const std::size_t at = log.find(" = ");
    return at == std::string::npos ? log : log.substr(at + 3, log.size() - at - 4);
}

// Text block of one part: the length, the text, a zero, the alignment, padding, a zero.
inline QByteArray TextBlock(const QByteArray& text, int align)
{
    const QByteArray inner = text + '\0' + I8(align) + '\0';
    return I8(inner.size()) + inner + '\0';
}

inline CRecord Text(const QByteArray& block)
{
    CRecord record;
    record.flags = kText | kDouble;
    record.code = 77;
    record.vertices = 2;
    record.metric = F64s({1, 2, 3, 4}) + block;
    return record;
}

inline const char* const kTextDrawn =
    " drawn 0 4294967295 4294967295 1800 200 align 24 bytes 0 0 0 0 0 204"
    " font 'Arial'\n";
inline const char* const kPlainLineLog = "line 51 '51' SYSTEM\n 2D (1 2) (3 4)\n";

} // namespace PnrBinReaderTest
