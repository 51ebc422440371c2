// SPDX-License-Identifier: MIT
#pragma once

#include "PnrLocalCodec.h"
#include "PnrWriting.h"
#include "SxfBuilder.h"

#include <limits>

/// What the tests of writing binary maps share: objects to write, and the bytes that came of them.
namespace PnrBinWriterTest {

using namespace VelorExchange::pnr;
using namespace SxfBuilder;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();

inline CPnrWriting::COptions Binary()
{
    return {};
}

// The bytes behind descriptor and in front of the frame record.
inline QByteArray Records(const QByteArray& file)
{
    return file.mid(452, file.size() - 452 - 112);
}

template <class Object>
QByteArray RecordOf(Object& object, bool (IPnrWriter::*write)(Object*),
                    const CPnrWriting::COptions& options = Binary())
{
    CPnrWriting writing(options);
    EXPECT_TRUE((writing.operator->()->*write)(&object));
    const QByteArray file = writing.Close();
    EXPECT_TRUE(writing.Closed());
    return Records(file);
}

inline QByteArray RecordOf(CLineObject& line)
{
    return RecordOf(line, &IPnrWriter::WriteLine);
}

inline QByteArray RecordOf(CTextObject& text)
{
    return RecordOf(text, &IPnrWriter::WriteText);
}

// Marker, lengths, code, number 1, flags.
inline QByteArray Head(int length, int metric, int code, quint32 flags)
{
    return I32(0x7FFF7FFF) + I32(length) + I32(metric) + I32(code) + I32(1) + I32(flags);
}

inline std::unique_ptr<CLineObject> PlainLine()
{
    auto line = std::make_unique<CLineObject>();
    line->code = 51;
    line->holders.push_back(Plan({{1, 2}, {3, 4}}));
    return line;
}

inline std::unique_ptr<CTextObject> PlainText(const QString& words)
{
    auto text = std::make_unique<CTextObject>();
    text->text = words;
    text->hasOwnImage = false;
    text->holders.push_back(Plan({{1, 2}, {3, 4}}));
    return text;
}

// The text block that the writer makes of the words, behind head and vertices.
inline QByteArray BlockOf(const QString& words)
{
    const auto text = PlainText(words);
    return RecordOf(*text).mid(32 + 32);
}

} // namespace PnrBinWriterTest
