// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfSurveyEntity.h"
#include "tools/velorx/formats/DxfTally.h"
#include "VelorExchange/dxf/records/HatchStyle.h"

#include <QHash>
#include <QString>

#include <vector>

namespace velorx {

/// The lines of hatch patterns as the hatches of a drawing tell them, one pattern for each name.
///
/// The reader tells no scale of a hatch, so that the first hatch of a name stands for all. Memory grows with
/// the names of patterns.
class CDxfHatchPatterns
{
public:
    /// A pattern at angle 0 whose first line runs through the origin.
    struct SPattern
    {
        std::vector<VelorExchange::dxf::CHatchLineDXF> lines;
        double scale = 1.0;
    };

    /// Begins a hatch.
    void Begin();

    /// A group of the hatch in hand.
    void Take(int code, double value);

    /// The hatch in hand, of the pattern `name`, is complete and is read.
    void Finish(const SDxfSurveyEntity& entity, const QString& name, CDxfTally& tally);

    /// The pattern `name`, in any case; null if no hatch tells its lines.
    const SPattern* Find(const QString& name) const;

    /// The lines of a pattern turned by `angle`, degrees.
    static std::vector<VelorExchange::dxf::CHatchLineDXF> LinesAt(const SPattern& pattern,
                                                                  double angle);

private:
    std::vector<VelorExchange::dxf::CHatchLineDXF>
        lines; ///< Of the hatch in hand, as it tells them.
    bool isInPattern = false;
    QHash<QString, SPattern> patterns; ///< By name without case.
};

} // namespace velorx
