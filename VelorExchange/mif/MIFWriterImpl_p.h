// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/mif/Extent_p.h"
#include "VelorExchange/mif/IMIFWriter.h"
#include "VelorExchange/mif/LocalEncoder_p.h"
#include "VelorExchange/mif/OutputBlock_p.h"
#include "VelorExchange/mif/StoredAttributes_p.h"

#include <QRectF>
#include <QTemporaryFile>

#include <map>
#include <memory>

namespace VelorExchange::mif {

/// Spools the data section of each layer into a temporary file. Holds in memory the object at hand and
/// the attributes of all.
class CMIFWriterImpl final : public IMIFWriter
{
public:
    explicit CMIFWriterImpl(IContext* host) : context(host) { }

    void Init(CExportLog* exportLog) override;
    void Rewrite(const QString& folder, const QRectF* bounds) override;
    void SetPrecision(int digits) override { precision = digits; }
    int GetPrecision() const override { return precision; }
    bool AddText(const CTextMIF& text, const QString& layer) override;
    bool AddPolyline(const CPolylineMIF& line, const QString& layer) override;
    bool AddRegion(const CRegionMIF& region, const QString& layer) override;
    bool AddPoint(const CPointMIF& point, const QString& layer) override;

private:
    void Reset();

    // ---- Objects ----

    CPoint2D Transformed(const CPoint2D& point) const
    {
        return context != nullptr ? context->TransformPoint(point) : point;
    }

    void PutReal(double value);
    void PutMapped(const CPoint2D& point, const CPoint2D& mapped);
    void PutVertices(const std::vector<CPoint2D>& points, CExtent& extent);
    void PutSymbol(const CSymbolMIF& symbol);
    bool SelectLayerFile(const QString& layer, const QRectF& rect);
    bool Store(const QString& givenLayer, const QRectF& rect, const QString& kind,
               const CAttributeHolderMIF& record);

    // ---- Assembly ----

    bool WriteGeometry(const QString& layer, const QString& name, const QRectF& bounds,
                       const std::vector<CWrittenColumn>& columns);
    bool WriteRows(const QString& name, const CStoredAttributes& attributes,
                   const std::vector<CWrittenColumn>& columns);
    QString Header(const std::vector<CWrittenColumn>& columns, const QRectF& bounds) const;
    void LogFailure(const QString& name) const;

    IContext* context; // not owned, may be null
    std::map<QString, CStoredAttributes> attributesByLayer;
    CExportLog* log = nullptr; // not owned, may be null
    std::map<QString, std::unique_ptr<QTemporaryFile>> filesByLayer;
    std::map<QString, QRectF> boundsByLayer; // in stored coordinates
    QTemporaryFile* currentFile = nullptr;
    int precision = 4;

    std::map<QString, qint64> sizesByLayer; // what the temporary files were given
    CLocalEncoder encoder;
    COutputBlock block; // the object at hand
    bool isFinite = true; // whether all its numbers are
};

/// `layer` with "_" for each character that can't stand in a file name.
QString SanitizeLayerName(const QString& layer);

} // namespace VelorExchange::mif
