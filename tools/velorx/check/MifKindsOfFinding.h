// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/Findings.h"

/// What can be found in a table.
namespace velorx::miffindings {

constexpr ELevel kFault = ELevel::Fault;
constexpr ELevel kRemark = ELevel::Remark;

inline constexpr SFindingKind kNoVersion = {"no-version", kFault,
                                            "headers that do not start with a version"};
inline constexpr SFindingKind kBadDelimiter = {"bad-delimiter", kFault,
                                               "delimiters that are not one character in quotes"};
inline constexpr SFindingKind kUnknownClause = {"unknown-clause", kFault,
                                                "unknown lines in the header"};
inline constexpr SFindingKind kNoData = {"no-data", kFault,
                                         "headers without an end (Data), so that nothing is read"};
inline constexpr SFindingKind kBadColumns = {
    "bad-columns", kFault, "counts of columns that are not those of the lines behind them"};
inline constexpr SFindingKind kBadColumn = {"bad-column", kFault,
                                            "columns that are not a name, a blank and a type"};
inline constexpr SFindingKind kUnreadType = {
    "unread-type", kFault, "columns of types that are not read, so that nothing of the table is"};
inline constexpr SFindingKind kHeaderWord = {
    "header-word", kRemark, "lines of the header that are taken for Delimiter, Columns or Data"};

inline constexpr SFindingKind kUnknownLine = {"unknown-line", kFault,
                                              "lines that are neither an object nor a part of one"};
inline constexpr SFindingKind kCutShort = {"cut-short", kFault,
                                           "objects that the end of the file cuts off"};
inline constexpr SFindingKind kBadCount = {"bad-count", kFault,
                                           "counts that are not those of the lines behind them"};
inline constexpr SFindingKind kFewVertices = {
    "few-vertices", kFault, "lines of less than two vertices, rings of less than three"};
inline constexpr SFindingKind kBadNumber = {"bad-number", kFault,
                                            "values that should be numbers, read as 0"};
inline constexpr SFindingKind kBadClause = {
    "bad-clause", kFault, "pens, brushes, symbols and fonts that cannot be taken apart"};
inline constexpr SFindingKind kBadString = {"bad-string", kFault,
                                            "texts that are not between two quotes"};
inline constexpr SFindingKind kOtherWord = {
    "other-word", kRemark, "objects that are taken for others because of a word in their line"};
inline constexpr SFindingKind kNone = {
    "none", kRemark, "objects without a shape, behind which rows go to the wrong objects", true};

inline constexpr SFindingKind kNoRows = {"no-rows", kFault, "tables whose .mid is missing"};
inline constexpr SFindingKind kFewRows = {"few-rows", kFault, "objects that have no row"};
inline constexpr SFindingKind kManyRows = {"many-rows", kFault, "rows that have no object"};
inline constexpr SFindingKind kBadRow = {"bad-row", kFault,
                                         "rows with more or fewer fields than columns"};
inline constexpr SFindingKind kBadQuotes = {
    "bad-quotes", kFault, "rows with an odd number of quotes, which may be parts of one row"};
inline constexpr SFindingKind kBadValue = {"bad-value", kFault,
                                           "values that are not of their column's type"};
inline constexpr SFindingKind kLongValue = {"long-value", kFault,
                                            "texts that are longer than their column"};
inline constexpr SFindingKind kDate = {"date", kRemark, "dates, which are read as that of today",
                                       true};
inline constexpr SFindingKind kLogical = {"logical", kRemark,
                                          "logical values that are true and read as false", true};
inline constexpr SFindingKind kFloat = {
    "float", kRemark,
    "numbers of Float columns with more than the about seven digits that are read"};

inline constexpr SFindingKind kBadText = {"bad-text", kFault,
                                          "texts with bytes that mean nothing in their code page"};
inline constexpr SFindingKind kOtherCodePage = {
    "other-code-page", kRemark,
    "lines beyond ASCII in tables that tell another character set (see --codepage)", true};

} // namespace velorx::miffindings
