// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Chords.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/IFeatureSource.h"
#include "tools/velorx/features/MifAttributes.h"
#include "tools/velorx/formats/MifFiles.h"
#include "tools/velorx/formats/MifRows.h"
#include "VelorExchange/mif/IMIFReader.h"

#include <QSet>
#include <QString>

namespace velorx {

/// Hands the objects of a table on as features while the library reads it.
///
/// The rings of a region come one by one, and nothing tells which are holes; but the library reports its
/// progress ahead of each object, and so those that come between two reports are the rings of one area.
/// Holds the area at hand, the last row of attributes, and the names of layers.
class CMifFeatureReader final : public VelorExchange::mif::IMIFReader
{
public:
    /// `sink`, `tally` and the progress of `options` outlive it. `layer` is the layer of objects whose row
    /// tells none.
    CMifFeatureReader(const SMifFiles& files, QString layer, const SReadingOptions& options,
                      IFeatureSink& sink, CFeatureTally& tally);

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

private:
    void FillHead(SFeature& feature, const char* kind,
                  const VelorExchange::mif::CAttributeHolderMIF& record);
    void FillLook(SAreaFeature& area, const VelorExchange::mif::CPenMIF& pen,
                  const VelorExchange::mif::CBrushMIF& brush);
    void CountPen(const VelorExchange::mif::CPenMIF& pen, const QString& layer);
    template <class TRecord>
    void DeliverRing(const char* kind, const TRecord& record, CFeatureLine ring);
    void DeliverArea();
    template <class TFeature>
    void Deliver(const TFeature& feature);
    void LoseIf(bool isLost, const char* what, const QString& layer);

    CMifRows rows;
    const QString tableLayer;
    CChords chords;
    VelorExchange::dxf::IDXFProgress* progress;
    IFeatureSink& sink;
    CFeatureTally& tally;
    CMifAttributes attributes;
    QSet<QString> layersTold;
    SAreaFeature
        region; ///< Of the rings that have come of the object at hand; empty between objects.
    qint64 fileSize = 0;
};

} // namespace velorx
