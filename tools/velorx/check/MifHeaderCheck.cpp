// SPDX-License-Identifier: MIT
#include "tools/velorx/check/MifHeaderCheck.h"

#include "tools/velorx/check/MifKindsOfFinding.h"

#include <algorithm>
#include <string>

namespace velorx {

using namespace miffindings;

namespace {

// Without meaning to the library. The last three go on with a coordinate system that fills several lines.
constexpr const char* kOtherClauses[] = {"unique", "index", "coordsys", "transform",
                                         "bounds", "units", "affine"};

// What the library looks for anywhere in a line.
constexpr const char* kWords[] = {"delimiter", "columns", "data"};

std::string InLowerCase(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return lower;
}

// What stands between the first two quotes; nothing if there are none.
bool FindQuoted(std::string_view line, std::string_view& quoted)
{
    const std::size_t begin = line.find('"');
    const std::size_t end = begin == std::string_view::npos ? begin : line.find('"', begin + 1);
    if (end == std::string_view::npos) {
        return false;
    }
    quoted = line.substr(begin + 1, end - begin - 1);
    return true;
}

} // namespace

void CMifHeaderCheck::Add(const SFindingKind& kind)
{
    findings.Add(kind, scan.Place(), Shown(scan.Line()));
}

bool CMifHeaderCheck::Run()
{
    while (scan.Next()) {
        const std::string word = scan.Word();
        if (word == "data") {
            return true;
        }
        if (isFirst && word != "version") {
            Add(kNoVersion);
        }
        isFirst = false;
        if (!TakeClause(word)) {
            Add(kUnknownClause);
        }
    }
    findings.Add(kNoData, scan.Place());
    return false;
}

bool CMifHeaderCheck::TakeClause(const std::string& word)
{
    struct SClause
    {
        const char* word;
        void (CMifHeaderCheck::*take)();
    };
    constexpr SClause kClauses[] = {{"version", &CMifHeaderCheck::TakeVersion},
                                    {"charset", &CMifHeaderCheck::TakeCharset},
                                    {"delimiter", &CMifHeaderCheck::TakeDelimiter},
                                    {"columns", &CMifHeaderCheck::TakeColumns}};
    for (const SClause& clause : kClauses) {
        if (word == clause.word) {
            (this->*clause.take)();
            return true;
        }
    }
    CheckWords();
    return std::any_of(std::begin(kOtherClauses), std::end(kOtherClauses),
                       [&word](const char* known) { return word == known; });
}

void CMifHeaderCheck::CheckWords()
{
    const std::string line = InLowerCase(scan.Line());
    if (std::any_of(std::begin(kWords), std::end(kWords),
                    [&line](const char* word) { return line.find(word) != std::string::npos; }))
    {
        Add(kHeaderWord);
    }
}

void CMifHeaderCheck::TakeVersion()
{
    const auto tokens = scan.Tokens();
    int version = 0;
    if (tokens.size() != 2 || !IsMifInteger(tokens[1], version)) {
        Add(kNoVersion);
    }
}

void CMifHeaderCheck::TakeCharset()
{
    std::string_view charset;
    if (!FindQuoted(scan.Line(), charset)) {
        Add(kUnknownClause);
    } else {
        head.charset = CodecOfCharset(charset);
        scan.SetCharset(head.charset);
    }
}

void CMifHeaderCheck::TakeDelimiter()
{
    std::string_view delimiter;
    if (!FindQuoted(scan.Line(), delimiter) || delimiter.size() != 1) {
        Add(kBadDelimiter);
    }
    if (!delimiter.empty()) {
        head.delimiter = delimiter.front();
    }
}

// The count may stand on the next line.
void CMifHeaderCheck::TakeColumns()
{
    auto tokens = scan.Tokens();
    if (tokens.size() == 1 && scan.Next()) {
        tokens = scan.Tokens();
        tokens.insert(tokens.begin(), std::string_view());
    }
    const SPlace place = scan.Place();
    const QString line = Shown(scan.Line());
    int count = 0;
    if (tokens.size() != 2 || !IsMifInteger(tokens[1], count) || count < 0) {
        findings.Add(kBadColumns, place, line);
        return;
    }
    for (int i = 0; i < count; ++i) {
        const bool isThere = scan.Next();
        if (!isThere || scan.Tokens().size() == 1) { // a column may be called "Data"
            findings.Add(kBadColumns, place, line + QStringLiteral(", found %1").arg(i));
            if (isThere) {
                scan.Back();
            }
            return;
        }
        TakeColumn();
    }
}

void CMifHeaderCheck::TakeColumn()
{
    SMifColumnType column;
    if (!ReadMifColumn(scan.Line(), column)) {
        Add(kBadColumn);
    } else if (column.type == EMifType::Other) {
        Add(kUnreadType);
    }
    head.columns.push_back(column);
}

} // namespace velorx
