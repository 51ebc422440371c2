// SPDX-License-Identifier: MIT
#include "tools/velorx/features/FeatureTally.h"

#include <algorithm>

namespace velorx {

// A conversion knows a few dozens of kinds and losses, so that walking beats hashing.
CFeatureTally::SKind& CFeatureTally::Kind(const char* name)
{
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [name](const SKind& kind) { return kind.name == name; });
    if (found != kinds.end()) {
        return *found;
    }
    SKind& kind = kinds.emplace_back();
    kind.name = name;
    return kind;
}

void CFeatureTally::Read(const char* kind, bool isInBlock, qint64 count)
{
    SKind& known = Kind(kind);
    (isInBlock ? known.inBlocks : known.inDrawing) += count;
}

void CFeatureTally::Wrote(const char* kind, const char* as)
{
    auto& written = Kind(kind).written;
    const auto found = std::find_if(written.begin(), written.end(),
                                    [as](const auto& entry) { return entry.first == as; });
    if (found != written.end()) {
        ++found->second;
    } else {
        written.emplace_back(as, 1);
    }
}

void CFeatureTally::Lose(const QString& what, const QString& layer, qint64 count)
{
    auto found = std::find_if(losses.begin(), losses.end(),
                              [&what](const SLoss& loss) { return loss.what == what; });
    if (found == losses.end()) {
        found = losses.insert(losses.end(), SLoss());
        found->what = what;
    }
    found->count += count;
    if (!layer.isEmpty()) {
        found->layers[layer] += count;
    }
}

void CFeatureTally::FillReport(CConversionReport& report) const
{
    for (const SKind& kind : kinds) {
        SConvertedKind row;
        row.name = QString::fromStdString(kind.name);
        row.inDrawing = kind.inDrawing;
        row.inBlocks = kind.inBlocks;
        for (const auto& [as, count] : kind.written) {
            row.writtenAs = QString::fromStdString(as);
            row.written = count;
            report.kinds.push_back(row);
            row.inDrawing = row.inBlocks = 0; // counted once, where a kind becomes several
        }
        if (kind.written.empty()) {
            report.kinds.push_back(row);
        }
    }
    for (const SLoss& loss : losses) {
        report.losses.push_back({loss.what, loss.count, {loss.layers.begin(), loss.layers.end()}});
    }
    report.remarks.insert(report.remarks.end(), remarks.begin(), remarks.end());
}

} // namespace velorx
