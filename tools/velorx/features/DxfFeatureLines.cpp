// SPDX-License-Identifier: MIT
// Points, lines and curves.
#include "tools/velorx/features/DxfFeatureLosses.h"
#include "tools/velorx/features/DxfFeatureReader.h"
#include "tools/velorx/features/DxfMultiline.h"
#include "tools/velorx/features/RingOrder.h"
#include "tools/velorx/features/SplinePieces.h"
#include "tools/velorx/formats/DxfKinds.h"
#include "tools/velorx/formats/DxfSurvey.h"
#include "VelorExchange/dxf/write/Colour.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;
constexpr double kTwoPi = 6.283185307179586;
constexpr double kLeastTurn = 1e-9;
constexpr double kLeastBulge = 1e-10;
constexpr double kCoincident = 1e-8; // squared, in file units

bool HasHeights(const CFeatureLine& line)
{
    return std::any_of(line.begin(), line.end(), [](const CPoint3D& p) { return p.z != 0.0; });
}

bool Coincide(const CPoint3D& a, const CPoint3D& b)
{
    return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y) < kCoincident;
}

bool IsBulged(const CVertexDXF& vertex)
{
    return std::fabs(vertex.bulge) >= kLeastBulge;
}

// Counter-clockwise; equal ends are a whole turn.
double SweepOf(double start, double end)
{
    const double sweep = std::fmod(end - start, kTwoPi);
    const double forward = sweep < 0 ? sweep + kTwoPi : sweep;
    return forward <= kLeastTurn ? kTwoPi : forward;
}

} // namespace

// Those that a dimension hangs on are for who changes it.
bool CDxfFeatureReader::OnPoint(const CPointDXF& record)
{
    Meet(kPoint);
    const bool isHelp = record.layer.compare(QLatin1String("DEFPOINTS"), Qt::CaseInsensitive) == 0;
    if (place.isInPicture && isHelp) {
        return Lost(EntityName(kPoint), LayerOf(record.layer), losses::kHelp);
    }
    SPointFeature point;
    FillHead(point, EntityName(kPoint), record.layer);
    point.position = record.point;
    point.symbol.color = ColourOf(record.color, record.layer);
    return Give(point);
}

bool CDxfFeatureReader::OnLine(const CLineDXF& record)
{
    Meet(kLine);
    const CFeatureLine path = {record.start, record.end};
    return GivePath(EntityName(kLine), record, path, HasHeights(path));
}

bool CDxfFeatureReader::OnXLine(const CXLineDXF& record)
{
    Meet(kXLine);
    return Lost(EntityName(kXLine), LayerOf(record.layer), losses::kEndless);
}

bool CDxfFeatureReader::OnRay(const CRayDXF& record)
{
    Meet(kRay);
    return Lost(EntityName(kRay), LayerOf(record.layer), losses::kEndless);
}

bool CDxfFeatureReader::OnArc(const CArcDXF& record)
{
    const char* kind = EntityName(KindOf(record));
    Meet(KindOf(record));
    const double start = record.startAngle * kDegree;
    CFeatureLine path;
    if (record.radius > 0) {
        path = chords.Arc(record.center, record.radius, start,
                          SweepOf(start, record.endAngle * kDegree));
    }
    const bool isGiven = GivePath(kind, record, path, HasHeights(path));
    if (isGiven) {
        Changed(losses::kCurves, LayerOf(record.layer));
    }
    return isGiven;
}

// The minor axis lies in the plan, as far as the reader tells: ellipses on a slant are not known as such.
bool CDxfFeatureReader::OnEllipse(const CEllipseDXF& record)
{
    Meet(kEllipse);
    const CPoint3D& major = record.majorAxis;
    const double flat = std::hypot(major.x, major.y);
    const double length = std::hypot(flat, major.z) * record.ratio;
    const CPoint3D minor = flat > 0
        ? CPoint3D{-major.y * length / flat, major.x * length / flat, 0.0}
        : CPoint3D{length, 0.0, 0.0};
    CFeatureLine path;
    if (flat > 0 || major.z != 0) {
        path = chords.EllipseArc({record.center, major, minor}, record.startParameter,
                                 SweepOf(record.startParameter, record.endParameter));
    }
    const bool isGiven = GivePath(EntityName(kEllipse), record, path, HasHeights(path));
    if (isGiven) {
        Changed(losses::kCurves, LayerOf(record.layer));
    }
    return isGiven;
}

bool CDxfFeatureReader::OnSpline(const CSplineDXF& record)
{
    Meet(kSpline);
    CFeatureLine path;
    bool hasCurves = false;
    for (const CBezier& piece : PiecesOf(record)) {
        hasCurves = hasCurves || piece.size() > 2;
        if (path.empty()) {
            path.push_back(piece.front());
        }
        chords.AppendBezier(path, piece);
    }
    const bool isGiven = GivePath(EntityName(kSpline), record, path, HasHeights(path));
    if (isGiven && hasCurves) {
        Changed(losses::kCurves, LayerOf(record.layer));
    }
    return isGiven;
}

// The height of a vertex is that of the polyline; the reader's closing vertex has a bulge there. A closed
// polyline of two vertices has none, but tells itself by the bulge of its second.
bool CDxfFeatureReader::OnLWPolyline(const CLWPolylineDXF& record)
{
    Meet(kLWPolyline);
    CPolylineDXF polyline;
    static_cast<CEntityDXF&>(polyline) = record;
    polyline.vertices = record.vertices;
    for (CVertexDXF& vertex : polyline.vertices) {
        vertex.point.z = record.elevation;
    }
    polyline.width = record.width;
    polyline.is2D = true;
    polyline.closed = record.vertices.size() == 2 && IsBulged(record.vertices.back());
    return GivePolyline(EntityName(kLWPolyline), polyline);
}

bool CDxfFeatureReader::OnPolyline(const CPolylineDXF& record)
{
    Meet(kPolyline);
    return GivePolyline(EntityName(kPolyline), record);
}

bool CDxfFeatureReader::GivePolyline(const char* kind, const CPolylineDXF& polyline)
{
    const std::vector<CVertexDXF>& vertices = polyline.vertices;
    CFeatureLine path;
    path.reserve(vertices.size() + 1);
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        if (i == 0) {
            path.push_back(vertices[i].point);
        } else {
            chords.AppendBulge(path, vertices[i].point, vertices[i - 1].bulge);
        }
    }
    const bool isBack =
        !path.empty() && Coincide(path.front(), path.back()) && path.front().z == path.back().z;
    if (polyline.closed && vertices.size() > 1 && !isBack) {
        chords.AppendBulge(path, vertices.front().point, vertices.back().bulge);
    }
    const double width = std::isfinite(polyline.width) ? std::fabs(polyline.width) : 0.0;
    const bool is3D = !polyline.is2D || HasHeights(path);
    const bool hasCurves = path.size() > vertices.size() + 1;
    const bool isGiven = GivePath(kind, polyline, std::move(path), is3D, width);
    if (isGiven && hasCurves) {
        Changed(losses::kCurves, LayerOf(polyline.layer));
    }
    return isGiven;
}

bool CDxfFeatureReader::OnMLine(const CMLineDXF& record)
{
    const char* kind = EntityName(kMLine);
    Meet(kMLine);
    const QString layer = LayerOf(record.layer);
    if (record.vertices.size() < 2) {
        return Lost(kind, layer, losses::kNothing);
    }
    const CMLineStyleGroups* groups = survey.MLineStyle(record.style.name);
    bool isGiven = false;
    for (const SMultilineElement& element :
         ElementsOf(groups, survey.MLineScale(record.style.name))) {
        constexpr int kByLayer = 256;
        CEntityDXF head;
        head.layer = record.layer;
        head.lineWeight = record.lineWeight;
        head.lineStyle.name = element.lineType;
        head.color = element.colour == 0 || element.colour == kByLayer
            ? record.color
            : static_cast<quint32>(NumColACAD2RGB(element.colour));
        const CFeatureLine path = LineBeside(record, element.offset);
        isGiven = GivePath(kind, head, path, HasHeights(path)) || isGiven;
    }
    if (isGiven) {
        Changed(groups != nullptr ? losses::kMultilines : losses::kNoMultilineStyle, layer);
    }
    return isGiven;
}

// What ends where it starts, with something in between, is an area.
bool CDxfFeatureReader::GivePath(const char* kind, const CEntityDXF& head, CFeatureLine path,
                                 bool is3D, double width)
{
    SFeatureStroke stroke = StrokeOf(head);
    stroke.planWidth = width;
    if (path.size() > 3 && Coincide(path.front(), path.back())) {
        CFeatureLine ring = path;
        ring.pop_back();
        DropRepeats(ring);
        if (ring.size() > 2) {
            SAreaFeature area;
            FillHead(area, kind, head.layer);
            area.is3D = is3D;
            area.stroke = stroke;
            area.rings.push_back(std::move(ring));
            return Give(area);
        }
    }
    SLineFeature line;
    FillHead(line, kind, head.layer);
    line.is3D = is3D;
    line.stroke = stroke;
    line.points = std::move(path);
    return Give(line);
}

} // namespace velorx
