// SPDX-License-Identifier: MIT
#include "tools/velorx/check/MifObjectCheck.h"

#include "tools/velorx/check/MifClauses.h"
#include "tools/velorx/check/MifKindsOfFinding.h"

#include <algorithm>

namespace velorx {

using namespace miffindings;

/// A kind of object.
struct CMifObjectCheck::SObject
{
    const char* word;
    void (CMifObjectCheck::*take)();
};

// In the order in which the library looks for them, anywhere in a line, but for the last two.
const CMifObjectCheck::SObject CMifObjectCheck::kObjects[] = {
    {"region", &CMifObjectCheck::TakeRegion},
    {"text", &CMifObjectCheck::TakeText},
    {"multipoint", &CMifObjectCheck::TakeMultipoint},
    {"point", &CMifObjectCheck::TakePoint},
    {"pline", &CMifObjectCheck::TakePolyline},
    {"line", &CMifObjectCheck::TakeLine},
    {"arc", &CMifObjectCheck::TakeArc},
    {"roundrect", &CMifObjectCheck::TakeRoundRect},
    {"rect", &CMifObjectCheck::TakeBox},
    {"ellipse", &CMifObjectCheck::TakeBox},
    {"collection", &CMifObjectCheck::TakeCollection},
    {"none", &CMifObjectCheck::TakeNothing},
};

namespace {

bool Contains(std::string_view line, std::string_view word)
{
    const auto isEqual = [](char one, char other) { return (one | 0x20) == other; };
    return std::search(line.begin(), line.end(), word.begin(), word.end(), isEqual) != line.end();
}

} // namespace

void CMifObjectCheck::Add(const SFindingKind& kind)
{
    findings.Add(kind, scan.Place(), Shown(scan.Line()));
}

bool CMifObjectCheck::Next()
{
    if (!scan.Next()) {
        return false;
    }
    const std::string word = scan.Word();
    for (const SObject& object : kObjects) {
        if (word == object.word) {
            TakeObject(object);
            return true;
        }
    }
    if (!isBehindObject || !TakeClause(word)) {
        Add(kUnknownLine);
        isBehindObject = isBehindObject && word.empty();
    }
    return true;
}

void CMifObjectCheck::TakeObject(const SObject& object)
{
    CheckWord(object);
    start = scan.Place();
    const bool isPart = parts > 0;
    parts -= isPart ? 1 : 0;
    objects += isPart ? 0 : 1;
    isBehindObject = true;
    (this->*object.take)();
}

// A name in quotes may hold a word that the library takes for that of an object.
void CMifObjectCheck::CheckWord(const SObject& object)
{
    for (const SObject& other : kObjects) {
        if (Contains(scan.Line(), other.word)) {
            if (&other != &object) {
                Add(kOtherWord);
            }
            return;
        }
    }
}

void CMifObjectCheck::TakeNothing()
{
    findings.Add(kNone, start);
}

void CMifObjectCheck::TakePoint()
{
    if (!TakeNumbersHere(1, 2)) {
        TakeNumbersHere(0, 2);
    }
}

void CMifObjectCheck::TakeLine()
{
    CheckNumbers(1, 4);
}

void CMifObjectCheck::TakeBox()
{
    CheckNumbers(1, 4);
}

void CMifObjectCheck::TakeArc()
{
    TakeBoxAndMore(2);
}

void CMifObjectCheck::TakeRoundRect()
{
    TakeBoxAndMore(1);
}

// What follows the box may stand on the next line.
void CMifObjectCheck::TakeBoxAndMore(std::size_t more)
{
    constexpr std::size_t kBehindBox = 5;
    CheckNumbers(1, 4);
    if (scan.Tokens().size() > kBehindBox) {
        CheckNumbers(kBehindBox, more);
    } else if (NextLine()) {
        CheckNumbers(0, more);
    }
}

void CMifObjectCheck::TakeMultipoint()
{
    int count = 0;
    if (TakeCountHere(count)) {
        TakeVertices(count, start);
    }
}

// One count on its own line or the next, or several sections with a count each.
void CMifObjectCheck::TakePolyline()
{
    constexpr int kFewest = 2;
    const auto tokens = scan.Tokens();
    int sections = 1;
    const bool isMultiple = tokens.size() > 1 && Contains(tokens[1], "multiple");
    if (isMultiple) {
        if (tokens.size() != 3 || !IsMifInteger(tokens[2], sections) || sections < 1) {
            Add(kBadCount);
            return;
        }
    } else if (tokens.size() == 2) {
        int count = 0;
        if (TakeCountHere(count)) {
            TakeChain(count, kFewest);
        }
        return;
    }
    TakeChains(sections, kFewest);
}

void CMifObjectCheck::TakeRegion()
{
    constexpr int kFewest = 3;
    const auto tokens = scan.Tokens();
    int rings = 0;
    if (tokens.size() < 2 || !IsMifInteger(tokens[1], rings) || rings < 1) {
        Add(kBadCount);
        return;
    }
    TakeChains(rings, kFewest);
}

void CMifObjectCheck::TakeText()
{
    if (scan.Line().find('"') == std::string_view::npos && !NextLine()) {
        return;
    }
    const std::string_view line = scan.Line();
    const auto quotes = std::count(line.begin(), line.end(), '"');
    if (quotes < 2 || quotes % 2 != 0) {
        Add(kBadString);
    }
    if (NextLine()) {
        CheckNumbers(0, 4);
    }
}

void CMifObjectCheck::TakeCollection()
{
    const auto tokens = scan.Tokens();
    if (tokens.size() != 2 || !IsMifInteger(tokens[1], parts) || parts < 0) {
        Add(kBadCount);
        parts = 0;
    }
}

// ---- Parts of objects ---------------------------------------------------------------------------

bool CMifObjectCheck::NextLine()
{
    if (scan.Next()) {
        return true;
    }
    findings.Add(kCutShort, start);
    return false;
}

void CMifObjectCheck::CheckNumbers(std::size_t first, std::size_t count)
{
    const auto tokens = scan.Tokens();
    for (std::size_t i = first; i < first + count; ++i) {
        if (i >= tokens.size() || !IsMifNumber(tokens[i])) {
            Add(kBadNumber);
            return;
        }
    }
}

// False where the line ends ahead of them, and then the next line is at hand.
bool CMifObjectCheck::TakeNumbersHere(std::size_t first, std::size_t count)
{
    if (first > 0 && scan.Tokens().size() <= first) {
        return !NextLine();
    }
    CheckNumbers(first, count);
    return true;
}

// The count behind the word of an object.
bool CMifObjectCheck::TakeCountHere(int& count)
{
    const auto tokens = scan.Tokens();
    if (tokens.size() == 2 && IsMifInteger(tokens[1], count) && count >= 0) {
        return true;
    }
    Add(kBadCount);
    return false;
}

// Chains of vertices, each behind its count.
void CMifObjectCheck::TakeChains(int chains, int fewest)
{
    for (int i = 0; i < chains; ++i) {
        int count = 0;
        if (!NextLine()) {
            return;
        }
        const auto tokens = scan.Tokens();
        if (tokens.size() != 1 || !IsMifInteger(tokens[0], count) || count < 0) {
            Add(kBadCount);
            scan.Back();
            return;
        }
        if (!TakeChain(count, fewest)) {
            return;
        }
    }
}

bool CMifObjectCheck::TakeChain(int count, int fewest)
{
    if (count < fewest) {
        Add(kFewVertices);
    }
    return TakeVertices(count, scan.Place());
}

bool CMifObjectCheck::IsVertex() const
{
    const auto tokens = scan.Tokens();
    return tokens.size() >= 2 && scan.Word().empty();
}

bool CMifObjectCheck::TakeVertices(int count, const SPlace& place)
{
    for (int i = 0; i < count; ++i) {
        if (!NextLine()) {
            return false;
        }
        if (!IsVertex()) {
            findings.Add(kBadCount, place, QStringLiteral("tells %1, has %2").arg(count).arg(i));
            scan.Back();
            return false;
        }
        CheckNumbers(0, 2);
    }
    SkipVertices(place, count);
    return true;
}

void CMifObjectCheck::SkipVertices(const SPlace& place, int count)
{
    qint64 more = 0;
    bool isLine = scan.Next();
    for (; isLine && IsVertex(); isLine = scan.Next()) {
        ++more;
    }
    if (isLine) {
        scan.Back();
    }
    if (more > 0) {
        findings.Add(kBadCount, place,
                     QStringLiteral("tells %1, has %2").arg(count).arg(count + more));
    }
}

bool CMifObjectCheck::TakeClause(const std::string& word)
{
    const EMifClause result = CheckMifClause(word, scan.Line());
    if (result == EMifClause::Bad) {
        Add(kBadClause);
    }
    return result != EMifClause::None;
}

} // namespace velorx
