// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/PnrTxtReader_p.h"

#include "VelorExchange/pnr/Deliver_p.h"
#include "VelorExchange/pnr/Texts_p.h"

#include <cstring>
#include <memory>

namespace VelorExchange::pnr {

namespace {

constexpr std::size_t kWordSize = 4;

// `word` is a point and three small letters; no letter beyond ASCII is one of these in either case.
bool StartsWith(const char* p, const char* word)
{
    constexpr int kToSmall = 0x20;
    return p[0] == '.' && (p[1] | kToSmall) == word[1] && (p[2] | kToSmall) == word[2]
        && (p[3] | kToSmall) == word[3];
}

// Calls `test` at every point of the line that has room for a word; true once it is.
template <class Test>
bool AnyPoint(const CTxtSpan& line, Test test)
{
    const char* p = line.begin();
    while (static_cast<std::size_t>(line.end() - p) >= kWordSize) {
        const auto room = static_cast<std::size_t>(line.end() - p) - kWordSize + 1;
        p = static_cast<const char*>(std::memchr(p, '.', room));
        if (!p) {
            return false;
        }
        if (test(p)) {
            return true;
        }
        ++p;
    }
    return false;
}

bool Contains(const CTxtSpan& line, const char* word)
{
    return AnyPoint(line, [word](const char* p) { return StartsWith(p, word); });
}

// False where no byte has the bit that all letters have, as in lines of coordinates.
bool MayHoldLetters(const CTxtSpan& line)
{
    constexpr quint64 kLetterBits = 0x4040404040404040U;
    quint64 chunk = 0;
    if (line.size < sizeof chunk) {
        return true;
    }
    const char* const last = line.end() - sizeof chunk;
    for (const char* p = line.begin(); p < last; p += sizeof chunk) {
        std::memcpy(&chunk, p, sizeof chunk);
        if ((chunk & kLetterBits) != 0) {
            return true;
        }
    }
    std::memcpy(&chunk, last, sizeof chunk);
    return (chunk & kLetterBits) != 0;
}

bool EndsBlock(const CTxtSpan& line)
{
    return MayHoldLetters(line) && AnyPoint(line, [](const char* p) {
               return StartsWith(p, ".obj") || StartsWith(p, ".end");
           });
}

} // namespace

bool CPnrTxtReader::Fail(const wchar_t* message)
{
    lastError = message;
    return false;
}

bool CPnrTxtReader::Open(const QString& fileName)
{
    return lines.Open(fileName) || Fail(texts::kCannotOpen);
}

bool CPnrTxtReader::Read(const QString& fileName)
{
    declared = 0;
    counted = 0;
    bool result = Open(fileName) && ReadDeclared() && ReadObjects();
    if (counted != declared) {
        result = Fail(texts::kWrongFormat);
    }
    lines.Close();
    return result;
}

// Nothing in front of the line with the count is looked at.
bool CPnrTxtReader::ReadDeclared()
{
    CTxtSpan line;
    while (lines.Next(line)) {
        if (Contains(line, ".dat")) {
            const CTxtBlock numbers(lines);
            declared = numbers.Int(CTxtTokens::Last(line));
            return declared >= 0 || Fail(texts::kWrongFormat);
        }
    }
    return true;
}

bool CPnrTxtReader::ReadObjects()
{
    CTxtBlock block(lines);
    CTxtSpan line;
    bool more = lines.Next(line);
    while (more) {
        if (Contains(line, ".obj")) {
            ++counted;
            block.Begin(line);
            while ((more = lines.Next(line)) && !EndsBlock(line)) {
                block.Add(line);
            }
            if (!ParseBlock(block)) {
                return Fail(texts::kWrongFormat);
            }
            lines.Release();
        } else if (line.size == kWordSize && StartsWith(line.data, ".end")) {
            return true;
        } else {
            more = lines.Next(line);
        }
    }
    return true;
}

bool CPnrTxtReader::ParseBlock(const CTxtBlock& block)
{
    const CTxtObjectParser parser(block);
    const CTxtSpan kind = CTxtTokens::Last(block.Line(0));
    if (kind == "LIN") {
        return ReadObject<CLineObject>(parser);
    }
    if (kind == "SQR") {
        return ReadObject<CSquareObject>(parser);
    }
    if (kind == "DOT" || kind == "VEC") {
        return ReadObject<CPointObject>(parser);
    }
    if (kind == "TIT" || kind == "MIX") {
        return ReadObject<CTextObject>(parser);
    }
    return false;
}

template <class Object>
bool CPnrTxtReader::ReadObject(const CTxtObjectParser& parser)
{
    const auto object = std::make_unique<Object>();
    if (!parser.Read(*object)) {
        return false;
    }
    Deliver(context, *object);
    return true;
}

} // namespace VelorExchange::pnr
