// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/ConversionReport.h"
#include "tools/velorx/features/Feature.h"
#include "tools/velorx/features/IFeatureSink.h"

#include <QString>
#include <QtGlobal>

#include <map>
#include <string>
#include <vector>

namespace velorx {

/// Counts of one conversion through the stream of features: whatever was read was either written or stands
/// among the losses. Memory grows with the kinds, and with the layers that lost something.
class CFeatureTally
{
public:
    /// `count` objects that the source calls `kind` were met.
    void Read(const char* kind, bool isInBlock = false, qint64 count = 1);

    /// An object of the source's `kind` went into the target as one that it calls `as`.
    void Wrote(const char* kind, const char* as);

    /// `what` follows a count: "hatch patterns became solid fills".
    void Lose(const QString& what, const QString& layer = QString(), qint64 count = 1);

    /// Something to know about the result that is no loss; one line each, without a line feed.
    void Remark(const QString& remark) { remarks.push_back(remark); }

    /// Puts what was met into the report, kinds and losses in the order in which they were first met.
    void FillReport(CConversionReport& report) const;

private:
    struct SKind
    {
        std::string name;
        qint64 inDrawing = 0;
        qint64 inBlocks = 0;
        std::vector<std::pair<std::string, qint64>> written;
    };
    struct SLoss
    {
        QString what;
        qint64 count = 0;
        std::map<QString, qint64> layers;
    };

    SKind& Kind(const char* name);

    std::vector<SKind> kinds;
    std::vector<SLoss> losses;
    std::vector<QString> remarks;
};

/// Hands `feature` to `sink` and counts what became of it.
template <class TFeature>
void HandOn(const TFeature& feature, IFeatureSink& sink, CFeatureTally& tally)
{
    if (const char* as = sink.Take(feature)) {
        tally.Wrote(feature.kind, as);
    }
}

} // namespace velorx
