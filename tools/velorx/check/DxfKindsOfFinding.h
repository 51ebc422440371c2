// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/Findings.h"

/// What can be found in a drawing.
namespace velorx::dxffindings {

constexpr ELevel kFault = ELevel::Fault;
constexpr ELevel kRemark = ELevel::Remark;

inline constexpr SFindingKind kBinary = {"binary", kFault,
                                         "binary drawings, which are not read: save it as text"};
inline constexpr SFindingKind kNoStart = {"no-start", kFault,
                                          "files that do not start with a section (0, SECTION)"};
inline constexpr SFindingKind kBadCode = {"bad-code", kFault, "group codes that are no numbers"};
inline constexpr SFindingKind kOddCode = {
    "odd-code", kFault, "group codes with leading zeros or a sign, which are not recognised"};
inline constexpr SFindingKind kOddEnd = {"odd-end", kFault,
                                         "group codes at the end of the file that have no value"};
inline constexpr SFindingKind kLongLine = {
    "long-line", kFault, "lines of more than 999 bytes, whose rest is taken for further lines"};
inline constexpr SFindingKind kBadReal = {"bad-real", kFault,
                                          "values that should be numbers, read as 0"};
inline constexpr SFindingKind kNotFinite = {"not-finite", kFault, "numbers that are not finite"};
inline constexpr SFindingKind kBadInteger = {"bad-integer", kFault,
                                             "values that should be whole numbers, read as 0"};

inline constexpr SFindingKind kOpenSection = {"open-section", kFault,
                                              "sections that are not closed"};
inline constexpr SFindingKind kOpenTable = {"open-table", kFault, "tables that are not closed"};
inline constexpr SFindingKind kOpenBlock = {"open-block", kFault, "blocks that are not closed"};
inline constexpr SFindingKind kOpenSequence = {
    "open-sequence", kFault, "polylines or inserts whose parts do not end with SEQEND"};
inline constexpr SFindingKind kStray = {"stray", kFault,
                                        "marks and parts that belong to nothing open"};
inline constexpr SFindingKind kNoEnd = {"no-end", kFault,
                                        "files without the mark of their end (0, EOF)"};
inline constexpr SFindingKind kBehindEnd = {"behind-end", kRemark,
                                            "lines behind the mark of the end, which are not read"};
inline constexpr SFindingKind kOutside = {"outside", kRemark,
                                          "groups outside of sections, which are not read"};
inline constexpr SFindingKind kLateSection = {"late-section", kFault,
                                              "sections behind OBJECTS, which are not read", true};
inline constexpr SFindingKind kBadCount = {"bad-count", kFault,
                                           "counts that are not those of the groups they count"};

inline constexpr SFindingKind kUnread = {"unread", kRemark, "entities of kinds that are not read",
                                         true};
inline constexpr SFindingKind kPaperSpace = {"paper-space", kRemark,
                                             "entities of paper space, which are not read", true};
inline constexpr SFindingKind kNoLayer = {"no-layer", kRemark,
                                          "entities on layers that are not defined", true};
inline constexpr SFindingKind kNoLineType = {"no-line-type", kRemark,
                                             "uses of line types that are not defined", true};
inline constexpr SFindingKind kNoStyle = {"no-style", kRemark,
                                          "texts in styles that are not defined", true};
inline constexpr SFindingKind kNoBlock = {"no-block", kFault,
                                          "inserts of blocks that are not defined", true};
inline constexpr SFindingKind kBlockLoop = {"block-loop", kFault,
                                            "inserts through which a block holds itself"};
inline constexpr SFindingKind kBadText = {"bad-text", kFault,
                                          "texts with bytes that mean nothing in their code page"};
inline constexpr SFindingKind kOtherCodePage = {
    "other-code-page", kRemark,
    "texts beyond ASCII in drawings that tell another code page (see --codepage)", true};

} // namespace velorx::dxffindings
