// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/Findings.h"

/// What can be found in a map of either form.
namespace velorx::sxffindings {

constexpr ELevel kFault = ELevel::Fault;
constexpr ELevel kRemark = ELevel::Remark;

// The binary form.
inline constexpr SFindingKind kNoMagic = {"no-magic", kFault,
                                          "files that do not start with \"SXF\""};
inline constexpr SFindingKind kOtherVersion = {
    "other-version", kFault, "maps of another version than 4, which are not read"};
inline constexpr SFindingKind kShortHeader = {"short-header", kFault,
                                              "files that end inside their header"};
inline constexpr SFindingKind kBadHeader = {
    "bad-header", kFault, "lengths and marks of the header that are not those of version 4"};
inline constexpr SFindingKind kBadChecksum = {"bad-checksum", kFault,
                                              "checksums that are wrong, so that nothing is read"};
inline constexpr SFindingKind kBadRecordCount = {"bad-record-count", kFault,
                                                 "counts of records that the file does not have"};
inline constexpr SFindingKind kOutOfStep = {"out-of-step", kFault,
                                            "places where a record should start"};
inline constexpr SFindingKind kBadLength = {
    "bad-length", kFault, "records whose length cannot be, or is not that of their parts"};
inline constexpr SFindingKind kBadKind = {"bad-kind", kFault, "records of unknown kinds"};
inline constexpr SFindingKind kBadMetric = {
    "bad-metric", kFault, "records whose coordinates do not fill the length told for them"};
inline constexpr SFindingKind kManyVertices = {
    "many-vertices", kFault, "contours of more than 32767 vertices, which are not read"};
inline constexpr SFindingKind kNotFinite = {"not-finite", kFault,
                                            "coordinates that are not finite"};
inline constexpr SFindingKind kBadDrawing = {
    "bad-drawing", kFault, "records whose drawing does not fill the length told for it"};
inline constexpr SFindingKind kBadAttribute = {
    "bad-attribute", kFault, "attributes of unknown types, or cut off by the end of their record"};
inline constexpr SFindingKind kBehindRecords = {"behind-records", kRemark,
                                                "bytes behind the last record, which are not read"};

// The text form.
inline constexpr SFindingKind kNoStart = {"no-start", kRemark,
                                          "files that start with neither .SXF nor .SIT"};
inline constexpr SFindingKind kBadObjectCount = {
    "bad-object-count", kFault, "counts of objects (.DAT) that are missing or wrong"};
inline constexpr SFindingKind kBadObject = {"bad-object", kFault,
                                            "objects (.OBJ) without a code or of an unknown kind"};
inline constexpr SFindingKind kBadCount = {"bad-count", kFault,
                                           "counts that are not those of the lines behind them"};
inline constexpr SFindingKind kBadVertex = {"bad-vertex", kFault,
                                            "vertices that are not two or three numbers each"};
inline constexpr SFindingKind kBadContours = {"bad-contours", kFault,
                                              "objects with more or fewer contours than they tell"};
inline constexpr SFindingKind kBadAttributeLine = {"bad-attribute-line", kFault,
                                                   "attributes that are not a code and a value"};
inline constexpr SFindingKind kBadDrawingLine = {
    "bad-drawing-line", kFault, "lines of a drawing that are not a word and a value"};
inline constexpr SFindingKind kNoEnd = {"no-end", kFault,
                                        "files without the mark of their end (.END)"};
inline constexpr SFindingKind kBehindEnd = {"behind-end", kRemark,
                                            "lines behind the mark of the end, which are not read"};
inline constexpr SFindingKind kOtherWord = {
    "other-word", kFault, "lines inside of which .OBJ or .END is taken for a mark"};
inline constexpr SFindingKind kBadText = {"bad-text", kFault,
                                          "lines with bytes that mean nothing in their code page"};

} // namespace velorx::sxffindings
