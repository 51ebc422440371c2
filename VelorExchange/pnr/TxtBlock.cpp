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

void CTxtBlock::Add(const CTxtSpan& line)
{
    if (line.size == 0) {
        return;
    }
    const char* p = line.begin();
    while (p != line.end() && *p == ' ') {
        ++p;
    }
    if (p != line.end() && (*p == '.' || *p == '_' || *p == '>')) {
        marks.push_back(places.size());
    }
    places.push_back({static_cast<std::size_t>(line.data - lines.Kept()), line.size});
}

CTxtSpan CTxtBlock::Line(std::size_t index) const
{
    return {lines.Kept() + places[index].offset, places[index].size};
}

bool CTxtBlock::Find(std::string_view word, std::size_t& index) const
{
    for (const std::size_t mark : marks) {
        if (CTxtTokens(Line(mark)).Next() == word) {
            index = mark;
            return true;
        }
    }
    return false;
}

std::size_t CTxtBlock::FindLast(std::string_view word, std::size_t from) const
{
    std::size_t found = 0;
    for (const std::size_t mark : marks) {
        if (mark >= from && CTxtTokens(Line(mark)).Next() == word) {
            found = mark;
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
