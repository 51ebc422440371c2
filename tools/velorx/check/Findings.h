// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <string_view>
#include <vector>

namespace velorx {

/// How bad a finding is.
enum class ELevel {
    Fault, ///< The file is not as its format wants it.
    Remark, ///< The file may be sound, but this library does not take all that it holds.
};

/// A kind of finding. Objects are inline constants, and known by their address.
struct SFindingKind
{
    const char* id; ///< For programs: "bad-number".
    ELevel level;
    const char* text; ///< In words that follow a count.
    bool isGathered = false; ///< One entry for all findings of equal detail, with their number.
};

/// Where something was found.
struct SPlace
{
    qint64 line = 0; ///< From 1; 0 where lines mean nothing.
    qint64 byte = -1; ///< From 0; -1 where bytes say nothing.
    const char* part = ""; ///< Of several files of one data set: ".mid"; empty for the file itself.
};

/// A line of the report.
struct SFinding
{
    SPlace place; ///< The first, of gathered ones.
    QString detail; ///< The value in question; can be empty.
    qint64 count = 1; ///< Of gathered ones.
};

/// What was found of one kind.
struct SFindingsOfKind
{
    const SFindingKind* kind = nullptr;
    qint64 count = 0; ///< All.
    std::vector<SFinding> first; ///< `CFindings::kKept` at most.
};

/// Collects findings. Memory grows with their kinds alone: of each kind some are kept, and all are counted.
class CFindings
{
public:
    static constexpr std::size_t kKept = 100;

    /// `kind` outlives this object. `count` findings of the same are at this place and behind it.
    void Add(const SFindingKind& kind, const SPlace& place, const QString& detail = QString(),
             qint64 count = 1);

    /// In the order in which the kinds were first met.
    const std::vector<SFindingsOfKind>& Kinds() const { return kinds; }

    /// How many findings of a level there are.
    qint64 Count(ELevel level) const;

private:
    SFindingsOfKind& OfKind(const SFindingKind& kind);

    std::vector<SFindingsOfKind> kinds;
};

/// A value of a file for a report: decoded by the local codec, trimmed, and cut where it is long.
QString Shown(std::string_view value);

} // namespace velorx
