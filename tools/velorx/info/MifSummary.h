// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/Extents.h"
#include "tools/velorx/formats/MifHeader.h"
#include "tools/velorx/formats/MifRows.h"
#include "tools/velorx/info/InfoOptions.h"
#include "tools/velorx/info/ISummary.h"
#include "VelorExchange/MIF.h"

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace velorx {

/// What is in a MIF/MID pair.
class CMifSummary final : public ISummary, public VelorExchange::mif::IMIFReader
{
public:
    /// Kinds of objects, in the order of the operations that deliver them.
    enum EKind : std::size_t {
        kArcs,
        kRoundRects,
        kEllipses,
        kRects,
        kTexts,
        kPolylines,
        kRegions,
        kPoints,
        kKinds
    };

    /// Counts by kind.
    using CCounts = std::array<qint64, kKinds>;

    /// The attributes of one object.
    struct SRow
    {
        EKind kind;
        std::vector<VelorExchange::mif::CAttributeMIF> attributes;
    };

    explicit CMifSummary(const SInfoOptions& options) : rowsWanted(options.rows) { }

    QString Read(const QString& path, VelorExchange::dxf::IDXFProgress* bar) override;
    QString ToText() const override;
    QJsonObject ToJson() const override;

    void AddArc(const VelorExchange::mif::CArcMIF& arc) override;
    void AddRoundRect(const VelorExchange::mif::CRoundRectMIF& rect) override;
    void AddEllipse(const VelorExchange::mif::CRectMIF& rect) override;
    void AddRect(const VelorExchange::mif::CRectMIF& rect) override;
    void AddText(const VelorExchange::mif::CTextMIF& text) override;
    void AddPolyline(const VelorExchange::mif::CPolylineMIF& line) override;
    void AddRegion(const VelorExchange::mif::CRegionMIF& region) override;
    void AddPoint(const VelorExchange::mif::CPointMIF& point) override;
    void SetProgressRange(int total) override;
    void SetProgress(int position) override;
    void Finish() override;

    bool result = false; ///< What `mif::Read` returned.
    SMifHeader header;
    CCounts objects{}; ///< Objects that delivered anything.
    CCounts records{}; ///< Calls of each operation: rings, sections and points each count.
    qint64 attributesTotal = 0; ///< Attributes of all records.
    qint64 recordsWithoutAttributes = 0;
    qint64 rowsTaken = 0; ///< Rows of the ".mid" that the reader took.
    std::optional<qint64> rowsLeft; ///< Rows that it did not take; nothing without a ".mid".
    CExtents extents; ///< Of what the records tell as positions.
    int rowsWanted = 0;
    std::vector<SRow> rows; ///< Of the first objects, `rowsWanted` at most.

private:
    template <class Record>
    void Count(EKind kind, const Record& record);
    template <class Record>
    void CountCorners(EKind kind, const Record& record);
    template <class Record>
    void CountPoints(EKind kind, const Record& record);
    QString Run(const QString& path);

    VelorExchange::dxf::IDXFProgress* progress = nullptr;
    std::unique_ptr<CMifRows> follower;
    qint64 fileSize = 0;
};

} // namespace velorx
