// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/ConversionReport.h"
#include "tools/velorx/formats/DxfKinds.h"
#include "tools/velorx/formats/DxfLosses.h"

#include <QString>

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <utility>

namespace velorx {

/// Counts of one conversion: each entity that stands in the drawing is written or stands among the losses.
///
/// Memory grows with the kinds of entities, and with the layers that lost something.
class CDxfTally
{
public:
    /// An entity stands in the drawing and is of a kind that the reader delivers.
    void Expect(EDxfKind kind) { ++expected[kind]; }

    /// All entities that the reader delivers were told to `Read`: what else was expected is lost.
    void EndReading() { hasEnded = true; }

    void Read(EDxfKind kind, bool isInBlock) { ++(isInBlock ? inBlocks : inDrawing)[kind]; }
    void Wrote(EDxfKind kind, const char* as) { ++written[kind][as]; }

    /// Something was lost or changed; `layer` is that of the element, empty where it is no element's.
    void Lose(EDxfLoss loss, const QString& layer = QString(), qint64 count = 1);

    /// Something that the reader does not know: a kind of entity, or a group of one. Beyond a thousand of
    /// them they count together.
    void Unread(const std::string& what, const QString& layer);

    /// Puts what was met into the report.
    void FillReport(CConversionReport& report) const;

private:
    struct SLoss
    {
        qint64 count = 0;
        std::map<QString, std::pair<QString, qint64>>
            layers; ///< As first spelled, by the name without case.

        void Add(const QString& layer, qint64 more);
    };

    static void AddTo(CConversionReport& report, const QString& what, const SLoss& loss);
    void AddMissing(CConversionReport& report) const;
    qint64 Missing(std::size_t kind) const;

    bool hasEnded = false;
    CEntityCounts expected{};
    CEntityCounts inDrawing{};
    CEntityCounts inBlocks{};
    std::array<std::map<std::string, qint64>, kDxfKinds> written;
    std::array<SLoss, static_cast<std::size_t>(EDxfLoss::kCount)> losses;
    std::map<std::string, SLoss> unread;
};

} // namespace velorx
