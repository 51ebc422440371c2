// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Templates_p.h"

#include "VelorExchange/dxf/write/templates/Blocks_p.h"
#include "VelorExchange/dxf/write/templates/Classes_p.h"
#include "VelorExchange/dxf/write/templates/Header_p.h"
#include "VelorExchange/dxf/write/templates/Objects_p.h"
#include "VelorExchange/dxf/write/templates/Tables_p.h"
#include "VelorExchange/dxf/write/templates/Viewports_p.h"

#include <array>
#include <cstddef>

namespace VelorExchange::dxf {

namespace {

constexpr std::size_t kCodeColumns = 3;
constexpr std::size_t kLineEnds = 4;

struct CColumn
{
    int first;
    int last;
    std::size_t width;
};

// Values of these groups are right-aligned: 16-bit integers in six columns, 32-bit ones in nine.
constexpr CColumn kColumns[] = {{60, 79, 6},   {90, 99, 9},   {170, 179, 6},
                                {270, 299, 6}, {370, 370, 6}, {380, 380, 6}};

constexpr std::size_t WidthOf(const CTemplatePair& pair)
{
    for (const CColumn& column : kColumns) {
        if (pair.code >= column.first && pair.code <= column.last
            && pair.value.size() < column.width) {
            return column.width;
        }
    }
    return pair.value.size();
}

constexpr bool StartsRecord(const CTemplatePair& pair)
{
    return pair.code == 0 || pair.code == 9;
}

constexpr bool IsIn(ETemplateVersion where, ETemplateVersion version)
{
    return where == ETemplateVersion::Both || where == version;
}

template <std::size_t Count, class Visit>
constexpr void ForEachPair(const CTemplatePair (&pairs)[Count], ETemplateVersion version,
                           Visit visit)
{
    bool recordIsIn = true;
    for (const CTemplatePair& pair : pairs) {
        if (StartsRecord(pair)) {
            recordIsIn = IsIn(pair.version, version);
        }
        if (recordIsIn && IsIn(pair.version, version)) {
            visit(pair);
        }
    }
}

template <std::size_t Count>
constexpr std::size_t LengthOf(const CTemplatePair (&pairs)[Count], ETemplateVersion version)
{
    std::size_t length = 0;
    ForEachPair(pairs, version, [&length](const CTemplatePair& pair) {
        length += kCodeColumns + WidthOf(pair) + kLineEnds;
    });
    return length;
}

// Fills a text from its start; what it is given must make its length.
template <std::size_t Size>
struct CText
{
    std::array<char, Size> bytes{};
    std::size_t length = 0;

    constexpr void Add(char c) { bytes[length++] = c; }
    constexpr void AddLineEnd()
    {
        Add('\r');
        Add('\n');
    }
    constexpr void AddCode(int code)
    {
        Add(code < 100 ? ' ' : static_cast<char>('0' + code / 100));
        Add(code < 10 ? ' ' : static_cast<char>('0' + code / 10 % 10));
        Add(static_cast<char>('0' + code % 10));
        AddLineEnd();
    }
    constexpr void AddPair(const CTemplatePair& pair)
    {
        AddCode(pair.code);
        for (std::size_t blanks = WidthOf(pair) - pair.value.size(); blanks > 0; --blanks) {
            Add(' ');
        }
        for (const char c : pair.value) {
            Add(c);
        }
        AddLineEnd();
    }
    constexpr std::string_view View() const { return {bytes.data(), length}; }
};

template <std::size_t Size, std::size_t Count>
constexpr CText<Size> TextOf(const CTemplatePair (&pairs)[Count], ETemplateVersion version)
{
    CText<Size> text;
    ForEachPair(pairs, version, [&text](const CTemplatePair& pair) { text.AddPair(pair); });
    return text;
}

// The lengths are fixed: a changed value that changes one is a mistake.
static_assert(LengthOf(templates::kHeader, k1015) == 5904);
static_assert(LengthOf(templates::kHeader, k1018) == 6242);
static_assert(LengthOf(templates::kClasses, k1015) == 502);
static_assert(LengthOf(templates::kClasses, k1018) == 304);
static_assert(LengthOf(templates::kBlocks, k1015) == 758);
static_assert(LengthOf(templates::kBlocks, k1018) == 758);
static_assert(LengthOf(templates::kObjects, k1015) == 5672);
static_assert(LengthOf(templates::kObjects, k1018) == 4164);
static_assert(LengthOf(templates::kViewports, k1015) == 756);
static_assert(LengthOf(templates::kViewports, k1018) == 756);
static_assert(LengthOf(templates::kTables, k1015) == 1318);
static_assert(LengthOf(templates::kTables, k1018) == 1318);

constexpr auto kHeader1015 = TextOf<5904>(templates::kHeader, k1015);
constexpr auto kHeader1018 = TextOf<6242>(templates::kHeader, k1018);
constexpr auto kClasses1015 = TextOf<502>(templates::kClasses, k1015);
constexpr auto kClasses1018 = TextOf<304>(templates::kClasses, k1018);
constexpr auto kBlocks = TextOf<758>(templates::kBlocks, k1018);
constexpr auto kObjects1015 = TextOf<5672>(templates::kObjects, k1015);
constexpr auto kObjects1018 = TextOf<4164>(templates::kObjects, k1018);
constexpr auto kViewports1015 = TextOf<756>(templates::kViewports, k1015);
constexpr auto kViewports1018 = TextOf<756>(templates::kViewports, k1018);
constexpr auto kTables = TextOf<1318>(templates::kTables, k1018);

constexpr CTemplates kTemplates1015 = {kHeader1015.View(),    kClasses1015.View(),
                                       kViewports1015.View(), kTables.View(),
                                       kBlocks.View(),        kObjects1015.View()};
constexpr CTemplates kTemplates1018 = {kHeader1018.View(),    kClasses1018.View(),
                                       kViewports1018.View(), kTables.View(),
                                       kBlocks.View(),        kObjects1018.View()};

} // namespace

const CTemplates& TemplatesOf(int version)
{
    return version == 1015 ? kTemplates1015 : kTemplates1018;
}

} // namespace VelorExchange::dxf
