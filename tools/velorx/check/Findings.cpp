// SPDX-License-Identifier: MIT
#include "tools/velorx/check/Findings.h"

#include <algorithm>

namespace velorx {

// A checker has a few dozens of kinds, so that walking beats hashing.
SFindingsOfKind& CFindings::OfKind(const SFindingKind& kind)
{
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [&kind](const auto& known) { return known.kind == &kind; });
    if (found != kinds.end()) {
        return *found;
    }
    SFindingsOfKind& added = kinds.emplace_back();
    added.kind = &kind;
    return added;
}

void CFindings::Add(const SFindingKind& kind, const SPlace& place, const QString& detail,
                    qint64 count)
{
    SFindingsOfKind& ofKind = OfKind(kind);
    ofKind.count += count;
    if (kind.isGathered) {
        const auto equal =
            std::find_if(ofKind.first.begin(), ofKind.first.end(),
                         [&detail](const SFinding& known) { return known.detail == detail; });
        if (equal != ofKind.first.end()) {
            equal->count += count;
            return;
        }
    }
    if (ofKind.first.size() < kKept) {
        ofKind.first.push_back({place, detail, count});
    }
}

qint64 CFindings::Count(ELevel level) const
{
    qint64 count = 0;
    for (const SFindingsOfKind& ofKind : kinds) {
        count += ofKind.kind->level == level ? ofKind.count : 0;
    }
    return count;
}

QString Shown(std::string_view value)
{
    constexpr std::size_t kMostBytes = 200;
    constexpr int kLongest = 60;
    const std::string_view start = value.substr(0, kMostBytes);
    const QString text =
        QString::fromLocal8Bit(start.data(), static_cast<int>(start.size())).trimmed();
    const bool isWhole = start.size() == value.size() && text.size() <= kLongest;
    return isWhole ? text : text.left(kLongest) + QStringLiteral("...");
}

} // namespace velorx
