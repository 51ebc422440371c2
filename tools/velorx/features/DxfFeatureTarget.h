// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/SafeNames.h"
#include "tools/velorx/features/IFeatureTarget.h"
#include "VelorExchange/dxf/records/Entity.h"
#include "VelorExchange/dxf/records/MText.h"
#include "VelorExchange/dxf/write/IDXFWriter.h"
#include "VelorExchange/foundation/ExportLog.h"

#include <QHash>
#include <QString>

#include <memory>

namespace velorx {

class CFeatureTally;

/// Writes a stream of features as a drawing.
///
/// What stands beside an object, its attributes and classifier code, goes into an insert of an empty block
/// ahead of it (`kDataBlock`). Memory grows with the number of names of layers, line types and fonts.
class CDxfFeatureTarget final : public IFeatureTarget
{
public:
    /// `counts` outlives this object.
    CDxfFeatureTarget(const STargetOptions& targetOptions, CFeatureTally& counts);

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
    struct CDeleter
    {
        void operator()(VelorExchange::dxf::IDXFWriter* made) const
        {
            VelorExchange::dxf::DeleteDXFWriter(made);
        }
    };

    VelorExchange::dxf::CEntityDXF Head(const SFeature& feature, const SFeatureStroke& stroke);
    VelorExchange::dxf::CLineStyleDXF LineStyle(const SFeatureStroke& stroke);
    double LineWeight(double width, const QString& layer);
    void Changed(const char* what, const QString& layer);
    void WriteData(const SFeature& feature, const VelorExchange::CPoint3D& place, int outlines = 0);

    /// `as`, or null and a loss if the writer did not take the object whose data stands ahead.
    const char* Result(bool isWritten, const SFeature& feature, const char* as);

    bool WriteLine(const SLineFeature& line, const char*& as);
    bool WriteSegment(const SLineFeature& line, const VelorExchange::dxf::CEntityDXF& head,
                      const char*& as);
    bool WriteFill(const SAreaFeature& area);
    bool WriteOutlines(const SAreaFeature& area);
    void FillText(VelorExchange::dxf::CTextDXF& record, const STextFeature& text);
    bool WriteInOneLine(const STextFeature& text);
    bool WriteInLines(const STextFeature& text);
    VelorExchange::dxf::CTextStyleDXF TextStyle(const STextFeature& text);

    CFeatureTally& tally;
    STargetOptions options;
    VelorExchange::CExportLog log;
    std::unique_ptr<VelorExchange::dxf::IDXFWriter, CDeleter> writer;
    CSafeNames layerNames;
    CSafeNames lineTypeNames;
    CSafeNames textStyleNames;
    QHash<QString, QString> lineTypes; ///< Name in the drawing by name and dashes in the stream.
    bool hasDataBlock = false;
    bool hasData = false; ///< Whether data of the object in hand was written.
};

} // namespace velorx
