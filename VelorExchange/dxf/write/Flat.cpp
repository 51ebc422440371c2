// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/IDXFWriter.h"
#include "VelorExchange/DXFFlat.h"
#include "VelorExchange/foundation/Coincidence_p.h"

#include <QString>

#include <vector>

using namespace VelorExchange;
using namespace VelorExchange::dxf;

namespace {

constexpr quint32 kByLayerColor = 256;
constexpr int kOldVersion = 1015;
constexpr int kNewVersion = 1018;

IDXFWriter& WriterOf(DXFWriterHandle handle)
{
    return *static_cast<IDXFWriter*>(handle);
}

// Not QString::fromUtf16, which would take a byte order mark away.
QString TextOf(const DXFChar* text)
{
    static_assert(sizeof(DXFChar) == sizeof(QChar));
    return QString(reinterpret_cast<const QChar*>(text)); // the same 16 bits under another name
}

// The layer is compared as given, before its name is made safe.
quint32 ColorOf(const DXFColor& color, const QString& layer)
{
    if (layer == QLatin1String("Dimensions") || layer == QLatin1String("Notes")) {
        return kByLayerColor;
    }
    return color.red | static_cast<quint32>(color.green) << 8U
        | static_cast<quint32>(color.blue) << 16U;
}

CPoint3D PointOf(const DXFVertex& vertex)
{
    return {vertex.x, vertex.y, vertex.bulge};
}

// Of vertices that coincide the last one stays, with its bulge.
std::vector<CPoint3D> DistinctVertices(const DXFVertex* vertices, int count)
{
    std::vector<CPoint3D> distinct;
    for (int i = 0; i < count; ++i) {
        const CPoint3D point = PointOf(vertices[i]);
        if (!distinct.empty() && CoincideInPlan(distinct.back(), point)) {
            distinct.back() = point;
        } else {
            distinct.push_back(point);
        }
    }
    return distinct;
}

} // namespace

extern "C" {

DXFWriterHandle DXF_CreateWriter(void)
{
    return CreateDXFWriter(nullptr);
}

void DXF_Init(DXFWriterHandle writer, int newVersion)
{
    WriterOf(writer).Init(newVersion != 0 ? kNewVersion : kOldVersion, nullptr);
}

bool DXF_AddPolyline(DXFWriterHandle writer, const DXFPolylineData* data)
{
    CLWPolylineDXF record;
    record.layer = TextOf(data->layer);
    record.color = ColorOf(data->color, record.layer);
    record.width = data->width;
    for (const CPoint3D& vertex : DistinctVertices(data->vertices, data->vertexCount)) {
        record.vertices.push_back({{vertex.x, vertex.y, 0.0}, vertex.z});
    }
    return WriterOf(writer).AddPolyline(record);
}

bool DXF_AddRegion(DXFWriterHandle writer, const DXFRegionData* data)
{
    CHatchDXF record;
    record.layer = TextOf(data->layer);
    record.color = ColorOf(data->color, record.layer);
    record.outline = DistinctVertices(data->vertices, data->vertexCount);
    for (int i = 0; i < data->holeCount; ++i) {
        const DXFHole& hole = data->holes[i];
        record.markedBoundaries.push_back(DistinctVertices(hole.vertices, hole.vertexCount));
    }
    return WriterOf(writer).AddHatch(record);
}

bool DXF_AddText(DXFWriterHandle writer, const DXFTextData* data)
{
    CMTextDXF record;
    record.layer = TextOf(data->layer);
    record.color = ColorOf(data->color, record.layer);
    record.text = TextOf(data->text);
    record.position = {data->x, data->y};
    record.height = data->height;
    record.rotation = data->angle;
    record.alignment = data->alignment;
    record.rectWidth = data->width;
    return WriterOf(writer).AddMText(record);
}

bool DXF_AddImage(DXFWriterHandle writer, const DXFImageData* data)
{
    CImageDXF record;
    record.layer = TextOf(data->layer);
    record.name = TextOf(data->name);
    record.filePath = TextOf(data->path);
    record.origin = {data->x, data->y};
    record.widthPixels = data->pixelWidth;
    record.heightPixels = data->pixelHeight;
    record.scaleX = data->sizeX;
    record.scaleY = data->sizeY;
    record.rotation = data->angle;
    record.clip = DistinctVertices(data->clip, data->clipCount);
    return WriterOf(writer).AddImage(record);
}

void DXF_Rewrite(DXFWriterHandle writer, const DXFChar* fileName)
{
    WriterOf(writer).Rewrite(TextOf(fileName));
}

void DXF_DeleteWriter(DXFWriterHandle writer)
{
    DeleteDXFWriter(static_cast<IDXFWriter*>(writer));
}

} // extern "C"
