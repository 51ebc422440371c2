// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"

#include "VelorExchange/dxf/write/Names_p.h"
#include "VelorExchange/foundation/ExportLog.h"
#include "VelorExchange/foundation/FileError.h"

#include <cmath>

namespace VelorExchange::dxf {

namespace {

// The templates use the handles below, and the DIMSTYLE record counts on the order of the defaults.
constexpr int kFirstHandle = 200;
constexpr int kOldVersion = 1015;
constexpr int kNewVersion = 1018;
constexpr int kDefaultPrecision = 6;
// What 0.1 * 0.1 comes to; the power function may give another neighbour.
constexpr double kHundredth = 0.010000000000000002;

void Require(bool done, const QFile& file)
{
    if (!done) {
        throw FileError(file);
    }
}

} // namespace

IDXFWriter::~IDXFWriter() = default;

IDXFWriter* CreateDXFWriter(IDXFWriter::IContext* context)
{
    try {
        return new CDXFWriterImpl(context);
    } catch (...) {
        if (context != nullptr) {
            context->writer = nullptr; // it was set to the writer that is gone
        }
        throw;
    }
}

void DeleteDXFWriter(IDXFWriter* writer)
{
    delete writer;
}

CDXFWriterImpl::CDXFWriterImpl(IContext* host)
    : IDXFWriter(host), lineStyles(SafeName), layers(LayerName), textStyles(SafeName)
{
    if (context != nullptr) {
        context->writer = this;
    }
    CDXFWriterImpl::SetPrecision(kDefaultPrecision);
    CDXFWriterImpl::Init(kNewVersion, nullptr);
}

CDXFWriterImpl::~CDXFWriterImpl() = default;

void CDXFWriterImpl::Init(int newVersion, CExportLog* newLog)
{
    version = newVersion == kOldVersion ? kOldVersion : kNewVersion;
    log = newLog;
    nextHandle = kFirstHandle;
    lineStyles.Clear();
    layers.Clear();
    textStyles.Clear();
    imageDefs.clear();
    blockHandles.clear();
    mlineStyles.clear();
    if (output.HasFailed()) {
        // What a failure left half done: blocks, and bytes that the files could not take.
        nestedBlocks.clear();
        blockColorFlags.clear();
        blockDepth = 0;
        for (auto* file : {&layerTable, &lineTypeTable, &styleTable, &entities, &blocks, &objects})
        {
            file->close();
        }
    }
    output.Reset();
    for (auto* file : {&layerTable, &lineTypeTable, &styleTable, &entities, &blocks, &objects}) {
        StartFile(*file);
    }
    output.SetTarget(entities);
    AddLayer(QStringLiteral("0"), true, false);
    for (const auto& name :
         {QStringLiteral("ByBlock"), QStringLiteral("ByLayer"), QStringLiteral("CONTINUOUS")})
    {
        CLineStyleDXF style;
        style.name = name;
        AddLineStyle(style);
    }
    AddTextStyle(CTextStyleDXF{}, false);
}

void CDXFWriterImpl::StartFile(QTemporaryFile& file)
{
    if (!file.isOpen()) {
        Require(file.open(), file);
    }
    Require(file.resize(0) && file.seek(0), file);
}

void CDXFWriterImpl::SetPrecision(int digits)
{
    precision = digits;
    tolerance = digits == 2 ? kHundredth : std::pow(0.1, digits);
    output.SetPrecision(digits);
}

CPoint2D CDXFWriterImpl::Placed(const CPoint2D& point) const
{
    return context != nullptr ? context->TransformPoint(point) : point;
}

CPoint3D CDXFWriterImpl::Placed(const CPoint3D& point) const
{
    const CPoint2D placed = Placed(CPoint2D{point.x, point.y});
    return {placed.x, placed.y, point.z};
}

// Asked for once an operation, before anything is written: the checks and the file see one factor.
void CDXFWriterImpl::TakeScale()
{
    scale = context != nullptr ? context->GetScale() : 1.0;
}

void CDXFWriterImpl::Count(const QString& kind)
{
    if (log != nullptr && !IsInBlock()) {
        log->UpStatistic(kind);
    }
}

} // namespace VelorExchange::dxf
