// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/TxtBlock_p.h"

#include "VelorExchange/foundation/NumberParser_p.h"

#include <cstring>

namespace VelorExchange::pnr {

CTxtSpan CTxtTokens::Next()
{
    while (p != end && *p == ' ') {
        ++p;
    }
    const char* first = p;
    while (p != end && *p != ' ') {
        ++p;
    }
    return {first, static_cast<std::size_t>(p - first)};
}

CTxtSpan CTxtTokens::Last(const CTxtSpan& line)
{
    const char* last = line.end();
    while (last != line.begin() && last[-1] == ' ') {
        --last;
    }
    const char* first = last;
    while (first != line.begin() && first[-1] != ' ') {
        --first;
    }
    return {first, static_cast<std::size_t>(last - first)};
}

std::size_t CTxtTokens::Count(const CTxtSpan& line)
{
    CTxtTokens tokens(line);
    std::size_t count = 0;
    while (tokens.Next().size > 0) {
        ++count;
    }
    return count;
}

bool operator==(const CTxtSpan& span, std::string_view word)
{
    return std::string_view(span.data, span.size) == word;
}

void CTxtBlock::Begin(const CTxtSpan& line)
{
    places.clear();
    marks.clear();
    lines.KeepFrom(line);
    Add(line);
}

void CTxtBlock::AddMark(const CTxtSpan& rest)
{
    const CTxtSpan token = CTxtTokens(rest).Next();
    marks.push_back(
        {places.size(), static_cast<std::size_t>(token.data - lines.Kept()), token.size});
}

bool CTxtBlock::Find(std::string_view word, std::size_t& index) const
{
    for (const CMark& mark : marks) {
        if (mark.size == word.size() && Token(mark) == word) {
            index = mark.line;
            return true;
        }
    }
    return false;
}

std::size_t CTxtBlock::FindLast(std::string_view word, std::size_t from) const
{
    std::size_t found = 0;
    for (const CMark& mark : marks) {
        if (mark.line >= from && mark.size == word.size() && Token(mark) == word) {
            found = mark.line;
        }
    }
    return found;
}

int CTxtBlock::Int(const CTxtSpan& token, bool& converts) const
{
    int value = 0;
    converts = ParsePlainInt(token.data, token.size, value);
    return converts || token.size == 0 ? value : Text(token).toInt(&converts);
}

int CTxtBlock::Int(const CTxtSpan& token) const
{
    bool converts = false;
    return Int(token, converts);
}

uint CTxtBlock::UInt(const CTxtSpan& token) const
{
    return Text(token).toUInt();
}

ushort CTxtBlock::UShort(const CTxtSpan& token) const
{
    return Text(token).toUShort();
}

double CTxtBlock::Double(const CTxtSpan& token) const
{
    double value = 0.0;
    if (token.size == 0 || ParsePlainDouble(token.data, token.size, value)) {
        return value;
    }
    return Text(token).toDouble();
}

} // namespace VelorExchange::pnr
