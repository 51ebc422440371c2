// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/IFeatureTarget.h"
#include "tools/velorx/features/MifColumns.h"
#include "tools/velorx/features/MifDetails.h"
#include "tools/velorx/features/MifTableNames.h"
#include "tools/velorx/formats/Extents.h"
#include "VelorExchange/foundation/ExportLog.h"
#include "VelorExchange/mif/IMIFWriter.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <memory>
#include <vector>

namespace velorx {

/// Writes features as MIF/MID tables: one pair, or into a folder one pair a layer.
///
/// A pair tells the layers of its objects in the column LAYER, if it has several or one that is called
/// neither as the pair nor as the source. The geometry is on disk until `Finish`; attributes are in
/// memory, and grow it as the library shares them.
class CMifFeatureTarget final : public IFeatureTarget
{
public:
    /// `options.path` is a file, whose ".mid" comes beside it, or a folder. `tally` outlives the target.
    CMifFeatureTarget(const STargetOptions& options, CFeatureTally& tally);
    CMifFeatureTarget(const CMifFeatureTarget&) = delete;
    CMifFeatureTarget(CMifFeatureTarget&&) = delete;
    CMifFeatureTarget& operator=(const CMifFeatureTarget&) = delete;
    CMifFeatureTarget& operator=(CMifFeatureTarget&&) = delete;
    ~CMifFeatureTarget() override;

    void TakeHead(const SFeatureHead& head) override;
    void TakeLayer(const SFeatureLayer& layer) override;
    const char* Take(const SPointFeature& point) override;
    const char* Take(const SLineFeature& line) override;
    const char* Take(const SAreaFeature& area) override;
    const char* Take(const STextFeature& text) override;
    const char* Take(const SImageFeature& image) override;
    QString Finish() override;
    QString Log() const override;

private:
    struct STable
    {
        QString name; ///< Of the pair, without an ending.
        CMifColumns columns;
        std::vector<SMifDetail> details;
        qint64 objects = 0;
    };

    STable& TableOf(const QString& layer);
    const SMifRow& RowOf(const SFeature& feature, STable& table);
    template <class TRecord>
    const char* Write(const SFeature& feature, TRecord& record,
                      bool (VelorExchange::mif::IMIFWriter::*add)(const TRecord&, const QString&),
                      const char* as, SMifDetail detail = {});
    bool AreInReach(const SFeature& feature, const CFeatureLine& points);
    void LoseIf(bool isLost, const char* what, const SFeature& feature);
    VelorExchange::mif::CPenMIF PenOf(const SFeature& feature, const SFeatureStroke& stroke);
    void CountRowLosses(const SMifRow& row, const QString& layer);
    void RemarkOnColumns(STable& table);
    void RemarkOnLayers();
    bool TellsLayers() const;
    void PutTables(const QString& folder);

    const STargetOptions options;
    CFeatureTally& tally;
    const bool isFolder;
    VelorExchange::CExportLog log;
    std::unique_ptr<VelorExchange::mif::IMIFWriter, void (*)(VelorExchange::mif::IMIFWriter*)>
        writer;
    CMifTableNames names;
    QHash<QString, std::shared_ptr<STable>> tables; ///< By layer; of a pair one, by the empty name.
    QSet<QString> layers; ///< Of what was written.
    QStringList layersTold; ///< Those that were announced.
    QSet<QString> remarks; ///< Those that were made.
    QString sourceName;
    CExtents extents; ///< Of what was written.

    // The row of the feature before: features in a row often share their attributes.
    SMifRow row;
    CFeatureAttributes rowAttributes;
    QString rowLayer;
    int rowCode = 0;
    bool hasRow = false;
};

} // namespace velorx
