// SPDX-License-Identifier: MIT
#include "tools/velorx/info/DxfSummary.h"

#include "tools/velorx/formats/DxfContent.h"
#include "tools/velorx/info/Family.h"

#include <QFile>

#include <boost/variant2/variant.hpp>

#include <algorithm>

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

QByteArray HeadOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(kHeadSize) : QByteArray();
}

} // namespace

QString CDxfSummary::Read(const QString& path, IDXFProgress* bar)
{
    progress = bar;
    result = VelorExchange::dxf::Read(path, this);
    progress = nullptr;
    version = headers > 0 ? header.version : VersionNearStart(HeadOf(path));
    hasEndMark = HasEndMark(path);
    if (!result) {
        return QStringLiteral("the drawing ends inside a block");
    }
    fault = IsEmpty() ? WhyNoDrawing(path) : QString();
    return {};
}

// Whether nothing at all was delivered.
bool CDxfSummary::IsEmpty() const
{
    const auto isZero = [](qint64 count) { return count == 0; };
    return headers + layers.total + textStyles.total + lineTypes.total + blocks.total == 0
        && std::all_of(drawing.begin(), drawing.end(), isZero);
}

// ---- Entities ---------------------------------------------------------------------------------

bool CDxfSummary::OnPolyline(const CPolylineDXF& /*polyline*/)
{
    ++drawing[kPolyline];
    return true;
}

bool CDxfSummary::OnMLine(const CMLineDXF& /*mline*/)
{
    ++drawing[kMLine];
    return true;
}

bool CDxfSummary::OnEllipse(const CEllipseDXF& /*ellipse*/)
{
    ++drawing[kEllipse];
    return true;
}

bool CDxfSummary::OnLWPolyline(const CLWPolylineDXF& /*polyline*/)
{
    ++drawing[kLWPolyline];
    return true;
}

bool CDxfSummary::OnSpline(const CSplineDXF& /*spline*/)
{
    ++drawing[kSpline];
    return true;
}

bool CDxfSummary::OnSolid(const CSolidDXF& /*solid*/)
{
    ++drawing[kSolid];
    return true;
}

bool CDxfSummary::OnLine(const CLineDXF& /*line*/)
{
    ++drawing[kLine];
    return true;
}

bool CDxfSummary::On3DFace(const C3DFaceDXF& /*face*/)
{
    ++drawing[k3DFace];
    return true;
}

bool CDxfSummary::OnXLine(const CXLineDXF& /*line*/)
{
    ++drawing[kXLine];
    return true;
}

bool CDxfSummary::OnRay(const CRayDXF& /*ray*/)
{
    ++drawing[kRay];
    return true;
}

bool CDxfSummary::OnArc(const CArcDXF& arc)
{
    ++drawing[KindOf(arc)];
    return true;
}

bool CDxfSummary::OnImage(const CImageDXF& /*image*/)
{
    ++drawing[kImage];
    return true;
}

bool CDxfSummary::OnInsert(const CInsertDXF& insert)
{
    ++drawing[kInsert];
    insertAttributes += static_cast<qint64>(insert.attributes.size());
    return true;
}

bool CDxfSummary::OnHatch(const CHatchDXF& /*hatch*/)
{
    ++drawing[kHatch];
    return true;
}

bool CDxfSummary::OnMText(const CMTextDXF& /*text*/)
{
    ++drawing[kMText];
    return true;
}

bool CDxfSummary::OnText(const CTextDXF& /*text*/)
{
    ++drawing[kText];
    return true;
}

bool CDxfSummary::OnPoint(const CPointDXF& /*point*/)
{
    ++drawing[kPoint];
    return true;
}

// ---- Blocks, tables, header -------------------------------------------------------------------

bool CDxfSummary::OnBlock(const CBlockDXF& block)
{
    blocks.Add({block.name, static_cast<qint64>(block.entities.size())});
    for (const CEntityVariantDXF& entity : block.entities) {
        ++inBlocks[KindOf(entity)];
        if (const auto* insert = boost::variant2::get_if<CInsertDXF>(&entity)) {
            insertAttributes += static_cast<qint64>(insert->attributes.size());
        }
    }
    return true;
}

bool CDxfSummary::OnTextStyle(const CTextStyleDXF& style)
{
    textStyles.Add(style);
    return true;
}

bool CDxfSummary::OnMLineStyle(const CMLineStyleDXF& style)
{
    mlineStyles.Add({style.name, static_cast<qint64>(style.colors.size())});
    return true;
}

bool CDxfSummary::OnLineStyle(const CLineStyleDXF& style)
{
    lineTypes.Add(style.name);
    return true;
}

bool CDxfSummary::OnLayer(const CLayerDXF& layer)
{
    layers.Add(layer);
    return true;
}

bool CDxfSummary::OnHeader(const CHeaderDXF& record)
{
    ++headers;
    header = record;
    return true;
}

} // namespace velorx
