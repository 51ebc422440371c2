// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFWriterImpl_p.h"

#include "VelorExchange/foundation/TemporaryFile_p.h"
#include "VelorExchange/mif/Tokens_p.h"

#include <algorithm>
#include <cmath>

namespace VelorExchange::mif {

namespace {

constexpr CSeparators kForbidden("\\/\"*?:|<>");
constexpr ushort kAsciiEnd = 0x80;

bool IsFinite(const QRectF& rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width())
        && std::isfinite(rect.height());
}

bool IsFinite(const CAttributeMIF& attribute)
{
    const int type = attribute.value.userType();
    return (type != QMetaType::Double && type != QMetaType::Float)
        || std::isfinite(attribute.value.toDouble());
}

bool AreFinite(const std::vector<CAttributeMIF>& attributes)
{
    return std::all_of(attributes.begin(), attributes.end(),
                       [](const CAttributeMIF& attribute) { return IsFinite(attribute); });
}

} // namespace

IMIFWriter* CreateMIFWriter(IMIFWriter::IContext* context)
{
    return new CMIFWriterImpl(context);
}

void DeleteMIFWriter(IMIFWriter* writer)
{
    delete writer;
}

QString SanitizeLayerName(const QString& layer)
{
    QString clean = layer;
    for (int i = 0; i < layer.size(); ++i) {
        const ushort c = layer.at(i).unicode();
        if (c < kAsciiEnd && kForbidden.Has(static_cast<char>(c))) {
            clean[i] = QLatin1Char('_');
        }
    }
    return clean;
}

void CMIFWriterImpl::Init(CExportLog* exportLog)
{
    log = exportLog;
    Reset();
}

void CMIFWriterImpl::Reset()
{
    attributesByLayer.clear();
    filesByLayer.clear();
    boundsByLayer.clear();
    sizesByLayer.clear();
    currentFile = nullptr;
}

// Makes the layer's temporary file current, with its "DATA" line, and lets `rect` into the layer's
// bounds. They stay finite: an object that would end this is refused.
bool CMIFWriterImpl::SelectLayerFile(const QString& layer, const QRectF& rect)
{
    const auto known = boundsByLayer.find(layer);
    const QRectF bounds = known == boundsByLayer.end() ? rect : known->second | rect;
    if (layer.isEmpty() || !IsFinite(bounds)) {
        return false;
    }
    const auto file = filesByLayer.find(layer);
    if (file != filesByLayer.end()) {
        currentFile = file->second.get();
    } else {
        std::unique_ptr<QTemporaryFile> opened = OpenTemporaryFile();
        if (!opened) {
            return false;
        }
        currentFile = opened.get();
        filesByLayer.emplace(layer, std::move(opened));
        constexpr char kData[] = "DATA\n\n";
        currentFile->write(kData);
        sizesByLayer[layer] = sizeof(kData) - 1;
    }
    boundsByLayer[layer] = bounds;
    return true;
}

// What every object ends with. Up to here nothing has been written and nothing counted. The result of
// writing isn't looked at: `Rewrite` compares the size of the file with what it was given.
bool CMIFWriterImpl::Store(const QString& givenLayer, const QRectF& rect, const QString& kind,
                           const CAttributeHolderMIF& record)
{
    const QString layer = SanitizeLayerName(givenLayer);
    if (!isFinite || !AreFinite(record.attributes) || !SelectLayerFile(layer, rect)) {
        return false;
    }
    currentFile->write(block.Data(), block.Size());
    sizesByLayer[layer] += block.Size();
    if (log != nullptr) {
        log->UpStatistic(layer + QStringLiteral(".MIF"), kind);
    }
    attributesByLayer[layer].Add(record.attributes);
    return true;
}

} // namespace VelorExchange::mif
