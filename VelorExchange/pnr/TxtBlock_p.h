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
    void Add(const CTxtSpan& line);

    std::size_t Count() const { return places.size(); }
    CTxtSpan Line(std::size_t index) const;

    /// The lines whose first token starts with ".", "_" or ">", by index: no look-up needs others.
    const std::vector<std::size_t>& Marks() const { return marks; }

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
    struct CPlace
    {
        std::size_t offset; // from the first byte of the block
        std::size_t size;
    };

    CTxtLines& lines;
    std::vector<CPlace> places;
    std::vector<std::size_t> marks;
};

} // namespace VelorExchange::pnr
