// SPDX-License-Identifier: MIT
#include "tools/velorx/check/MifClauses.h"

#include "tools/velorx/check/MifScan.h"

#include <algorithm>
#include <vector>

namespace velorx {

namespace {

/// Numbers of parts that the parentheses of a clause may hold; none for a clause without them.
struct SClause
{
    const char* word;
    std::vector<std::size_t> parts;
    std::size_t tokens; ///< At least, of a clause without parentheses.
};

const std::vector<SClause>& Clauses()
{
    static const std::vector<SClause> clauses = {
        {"pen", {3}, 0},    {"brush", {2, 3}, 0}, {"symbol", {3, 4, 6}, 0}, {"font", {4, 5}, 0},
        {"center", {}, 3},  {"smooth", {}, 1},    {"angle", {}, 2},         {"spacing", {}, 2},
        {"justify", {}, 2}, {"label", {}, 2},
    };
    return clauses;
}

// Commas inside quotes belong to a name.
std::size_t CountParts(std::string_view inside)
{
    std::size_t parts = 1;
    bool isQuoted = false;
    for (const char c : inside) {
        isQuoted = c == '"' ? !isQuoted : isQuoted;
        parts += c == ',' && !isQuoted ? 1 : 0;
    }
    return parts;
}

std::size_t CountTokens(std::string_view line)
{
    std::size_t tokens = 0;
    bool isInside = false;
    for (const char c : line) {
        const bool isBlank = c == ' ' || c == '\t';
        tokens += !isBlank && !isInside ? 1 : 0;
        isInside = !isBlank;
    }
    return tokens;
}

bool IsGood(const SClause& clause, std::string_view line)
{
    if (clause.parts.empty()) {
        return CountTokens(line) >= clause.tokens;
    }
    const std::size_t begin = line.find('(');
    const std::size_t end = line.rfind(')');
    if (begin == std::string_view::npos || end == std::string_view::npos || end < begin) {
        return false;
    }
    const std::size_t parts = CountParts(line.substr(begin + 1, end - begin - 1));
    return std::find(clause.parts.begin(), clause.parts.end(), parts) != clause.parts.end();
}

} // namespace

EMifClause CheckMifClause(const std::string& word, std::string_view line)
{
    for (const SClause& clause : Clauses()) {
        if (word == clause.word) {
            return IsGood(clause, line) ? EMifClause::Good : EMifClause::Bad;
        }
    }
    return EMifClause::None;
}

} // namespace velorx
