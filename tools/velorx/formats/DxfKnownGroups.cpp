// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfKnownGroups.h"

#include <algorithm>
#include <bitset>
#include <iterator>
#include <map>
#include <sstream>

namespace velorx {

namespace {

constexpr int kExtendedData = 1000;

using CCodes = std::bitset<kExtendedData>;

struct SKnown
{
    const char* kind;
    const char* codes; ///< Numbers and ranges of them, parted by blanks.
};

// 92, 160 and 310 hold a picture of the entity for programs that do not know its kind.
constexpr char kOfAll[] =
    "0 5 6 8 39 48 60 62 67 92 100 102 160 210 220 230 310 330 360 370 410 420 440";

constexpr SKnown kKnown[] = {
    {"POINT", "10 20 30 50"},
    {"LINE", "10-11 20-21 30-31"},
    {"XLINE", "10-11 20-21 30-31"},
    {"RAY", "10-11 20-21 30-31"},
    {"ARC", "10 20 30 40 50-51"},
    {"CIRCLE", "10 20 30 40"},
    {"ELLIPSE", "10-11 20-21 30-31 40-42"},
    {"SPLINE", "10-13 20-23 30-33 40-44 70-74"},
    {"LWPOLYLINE", "10 20 30 38 40-43 70 90-91"},
    {"POLYLINE", "10 20 30 40-41 66 70-75"},
    {"TEXT", "1 7 10-11 20-21 30-31 40-41 50-51 71-73"},
    {"ATTRIB", "1-2 7 10-11 20-21 30-31 40-41 50-51 70-74 280"},
    {"ATTDEF", "1-3 7 10-11 20-21 30-31 40-41 50-51 70-74 280"},
    {"MTEXT", "1 3 7 10-11 20-21 30-31 40-43 50 71"},
    {"SOLID", "10-13 20-23 30-33"},
    {"3DFACE", "10-13 20-23 30-33 70"},
    {"HATCH", "2 10-13 20-23 30 40-53 70-79 91 93-98 421 450-463 470"},
    {"MLINE", "2 10-13 20-23 30-33 40-42 70-75 340"},
    {"IMAGE", "10-14 20-24 30-32 70-71 90-91 280-283 340"},
    {"LEADER", "3 10 20 30 40-41 71-77 211-213 221-223 231-233 340"},
    {"INSERT", "2 10 20 30 41-45 50 66 70-71"},
};

/// Values other than 0 that stand for what is usual, and what the result has.
struct SUsual
{
    const char* kind;
    int code;
    double value;
};

// Paragraphs that run from left to right, or as their style has it, in lines of usual spacing.
constexpr SUsual kUsual[] = {
    {"MTEXT", 72, 1}, {"MTEXT", 72, 5}, {"MTEXT", 73, 1}, {"MTEXT", 44, 1}};

void AddCodes(CCodes& codes, const char* list)
{
    std::istringstream words(list);
    for (std::string word; words >> word;) {
        const auto dash = word.find('-');
        const unsigned long first = std::stoul(word);
        const unsigned long last =
            dash == std::string::npos ? first : std::stoul(word.substr(dash + 1));
        for (unsigned long code = first; code <= last; ++code) {
            codes.set(code);
        }
    }
}

std::map<std::string, CCodes> MakeTable()
{
    std::map<std::string, CCodes> table;
    for (const SKnown& known : kKnown) {
        CCodes& codes = table[known.kind];
        AddCodes(codes, kOfAll);
        AddCodes(codes, known.codes);
    }
    return table;
}

} // namespace

bool IsGroupKnown(const std::string& kind, int code, const CDxfGroups& groups)
{
    static const std::map<std::string, CCodes> table = MakeTable();
    const auto codes = table.find(kind);
    if (codes == table.end() || code >= kExtendedData || groups.IsZero(code)
        || codes->second.test(static_cast<std::size_t>(code)))
    {
        return true;
    }
    return std::any_of(std::begin(kUsual), std::end(kUsual), [&](const SUsual& usual) {
        return usual.kind == kind && usual.code == code && !groups.Varies(code)
            && groups.Number(code) == usual.value;
    });
}

} // namespace velorx
