// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/TxtLines_p.h"

#include <QString>

#include <cstddef>
#include <string_view>
#include <vector>

namespace VelorExchange::pnr {

/// Walks the tokens of a line: what stands between blanks (U+0020).
class CTxtTokens
{
public:
    explicit CTxtTokens(const CTxtSpan& line) : p(line.begin()), end(line.end()) { }

    /// The next token, empty at the end of the line.
    CTxtSpan Next();

    static CTxtSpan Last(const CTxtSpan& line);
    static std::size_t Count(const CTxtSpan& line);

private:
    const char* p;
    const char* end;
};

bool operator==(const CTxtSpan& span, std::string_view word);

/// The lines of one object, empty ones left out. Numbers read as 0 where they don't convert or a
/// token is missing.
class CTxtBlock
{
public:
    explicit CTxtBlock(CTxtLines& source) : lines(source) { }

    /// Starts with the line that opens the object.
    void Begin(const CTxtSpan& line);
    void Add(const CTxtSpan& line)
    {
        if (line.size == 0) {
            return;
        }
        const char* p = line.begin();
        while (p != line.end() && *p == ' ') {
            ++p;
        }
        if (*p == '.' || *p == '_' || *p == '>') {
            AddMark({p, static_cast<std::size_t>(line.end() - p)});
        }
        places.push_back({static_cast<std::size_t>(line.data - lines.Kept()), line.size});
    }

    std::size_t Count() const { return places.size(); }
    CTxtSpan Line(std::size_t index) const
    {
        return {lines.Kept() + places[index].offset, places[index].size};
    }

    /// A line whose first token starts with ".", "_" or ">": no look-up needs others.
    struct CMark
    {
        std::size_t line; // its index
        std::size_t offset; // of the token, from the first byte of the block
        std::size_t size; // of the token
    };

    const std::vector<CMark>& Marks() const { return marks; }
    CTxtSpan Token(const CMark& mark) const { return {lines.Kept() + mark.offset, mark.size}; }

    /// The first line whose first token is `word`; false if there is none.
    bool Find(std::string_view word, std::size_t& index) const;

    /// The last line from `from` on whose first token is `word`, or 0.
    std::size_t FindLast(std::string_view word, std::size_t from) const;

    QString Text(const CTxtSpan& span) const { return lines.Decode(span); }
    int Int(const CTxtSpan& token) const;
    int Int(const CTxtSpan& token, bool& converts) const;
    uint UInt(const CTxtSpan& token) const;
    ushort UShort(const CTxtSpan& token) const;
    double Double(const CTxtSpan& token) const;

private:
    void AddMark(const CTxtSpan& rest);

    struct CPlace
    {
        std::size_t offset; // from the first byte of the block
        std::size_t size;
    };

    CTxtLines& lines;
    std::vector<CPlace> places;
    std::vector<CMark> marks;
};

} // namespace VelorExchange::pnr
