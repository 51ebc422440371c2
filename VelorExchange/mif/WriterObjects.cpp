// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFWriterImpl_p.h"
#include "VelorExchange/mif/Texts_p.h"
#include "VelorExchange/mif/Tokens_p.h"

#include <cmath>

namespace VelorExchange::mif {

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kThreeQuarters = 4.71238898038469;
constexpr double kHalfTurn = 180.0;
constexpr double kLeastAngle = 0.001;
constexpr std::size_t kLeastPolyline = 2;
constexpr std::size_t kLeastRegion = 3;

double ToDegrees(double radians)
{
    return radians * kHalfTurn / kPi;
}

qint64 FileColor(quint32 color)
{
    return SwapRedAndBlue(color);
}

// The corners, and the text's width to the right, to the left and down from the first. Up is left out:
// see WriterObjects.TextReachesRightLeftAndDown.
QRectF TextBounds(const CTextMIF& text, double width)
{
    const CPoint2D& corner = text.corner1;
    CExtent extent(QRectF(QPointF(corner.x, corner.y), QPointF(text.corner2.x, text.corner2.y)));
    for (const double angle : {0.0, kPi, kThreeQuarters}) {
        extent.Add(corner.x + width * std::cos(angle), corner.y + width * std::sin(angle));
    }
    return extent.Rect();
}

bool IsFinitePoint(const CPoint2D& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y);
}

} // namespace

void CMIFWriterImpl::PutReal(double value)
{
    isFinite = isFinite && std::isfinite(value);
    block.PutReal(value, precision);
}

// x and y of a point as the host's context mapped it.
void CMIFWriterImpl::PutMapped(const CPoint2D& point, const CPoint2D& mapped)
{
    isFinite = isFinite && IsFinitePoint(point) && IsFinitePoint(mapped);
    block.PutReal(mapped.x, precision);
    block.Put(' ');
    block.PutReal(mapped.y, precision);
}

// The line with the count, and a line for each point.
void CMIFWriterImpl::PutVertices(const std::vector<CPoint2D>& points, CExtent& extent)
{
    block.PutInteger(static_cast<qint64>(points.size()));
    block.Put('\n');
    for (const CPoint2D& point : points) {
        PutMapped(point, Transformed(point));
        block.Put('\n');
        extent.Add(point.x, point.y);
    }
}

bool CMIFWriterImpl::AddPolyline(const CPolylineMIF& line, const QString& layer)
{
    if (line.points.size() < kLeastPolyline) {
        return false;
    }
    CExtent extent;
    block.Clear();
    isFinite = true;
    block.Put("PLINE\n");
    PutVertices(line.points, extent);
    block.Put("PEN (");
    block.PutInteger(line.pen.width);
    block.Put(", ");
    block.PutInteger(line.pen.pattern);
    block.Put(", ");
    block.PutInteger(FileColor(line.pen.color));
    block.Put(")\n");
    return Store(layer, extent.Rect(), texts::Polylines(), line);
}

// The pen is always that of no outline, whatever the record holds: see
// WriterObjects.RegionHasAFixedPen.
bool CMIFWriterImpl::AddRegion(const CRegionMIF& region, const QString& layer)
{
    if (region.points.size() < kLeastRegion) {
        return false;
    }
    CExtent extent;
    block.Clear();
    isFinite = true;
    block.Put("REGION 1\n");
    PutVertices(region.points, extent);
    block.Put("PEN (1, 1, 0)\nBRUSH (");
    block.PutInteger(region.brush.pattern);
    block.Put(", ");
    block.PutInteger(FileColor(region.brush.foreColor));
    block.Put(", ");
    block.PutInteger(FileColor(region.brush.backColor));
    block.Put(")\n");
    return Store(layer, extent.Rect(), texts::Regions(), region);
}

void CMIFWriterImpl::PutSymbol(const CSymbolMIF& symbol)
{
    block.Put("SYMBOL (");
    block.PutInteger(symbol.shape);
    block.Put(", ");
    block.PutInteger(FileColor(symbol.color));
    block.Put(", ");
    block.PutInteger(symbol.size);
    if (!symbol.font.isEmpty()) {
        encoder.Put(block, QStringLiteral(", \"") + symbol.font + QStringLiteral("\", "));
        block.PutInteger(symbol.style);
        block.Put(", ");
        PutReal(ToDegrees(symbol.angle));
    }
    block.Put(")\n");
}

bool CMIFWriterImpl::AddPoint(const CPointMIF& point, const QString& layer)
{
    block.Clear();
    isFinite = true;
    block.Put("POINT ");
    PutMapped(point.position, Transformed(point.position));
    block.Put('\n');
    if (point.symbol.shape > 0) {
        PutSymbol(point.symbol);
    }
    CExtent extent;
    extent.Add(point.position.x, point.position.y);
    return Store(layer, extent.Rect(), texts::Points(), point);
}

bool CMIFWriterImpl::AddText(const CTextMIF& text, const QString& layer)
{
    const CPoint2D first = Transformed(text.corner1);
    const CPoint2D second = Transformed(text.corner2);
    block.Clear();
    isFinite = true;
    QString value = text.text;
    value.replace(QLatin1Char('"'), QStringLiteral("\"\""));
    encoder.Put(block, QStringLiteral("TEXT \"") + value + QStringLiteral("\"\n"));
    PutMapped(text.corner1, first);
    block.Put(' ');
    PutMapped(text.corner2, second);
    block.Put('\n');
    encoder.Put(block, QStringLiteral("FONT (\"") + text.font.name + QStringLiteral("\", "));
    block.PutInteger(text.font.style);
    block.Put(", 0, ");
    block.PutInteger(FileColor(text.font.color));
    block.Put(")\n");
    if (std::fabs(text.angle) >= kLeastAngle) {
        block.Put("Angle ");
        PutReal(ToDegrees(text.angle));
        block.Put('\n');
    }
    const QRectF bounds = TextBounds(text, std::fabs(first.x - second.x));
    return Store(layer, bounds, texts::Texts(), text);
}

} // namespace VelorExchange::mif
