// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfLeader.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

namespace velorx {

namespace {

enum ECode { kX = 10, kY = 20, kZ = 30, kArrow = 71, kCurve = 72 };

// What a leader has in common with all entities.
constexpr int kCommon[] = {6, 8, 48, 60, 62, 67, 370, 420, 440};

struct SPoint
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

std::vector<SPoint> PointsOf(const CDxfRawObject& leader)
{
    std::vector<SPoint> points;
    for (const SDxfRawGroup& group : leader.Groups()) {
        const double number = CDxfRawObject::NumberOf(group);
        if (group.number == kX) {
            points.push_back({number, 0.0, 0.0});
        } else if (group.number == kY && !points.empty()) {
            points.back().y = number;
        } else if (group.number == kZ && !points.empty()) {
            points.back().z = number;
        }
    }
    return points;
}

// Objects that are drawn in place of another.
class CDrawn
{
public:
    explicit CDrawn(const CDxfRawObject& leader) : source(leader) { }

    void Begin(const char* kind)
    {
        Append(0, kind);
        for (const SDxfRawGroup& group : source.Groups()) {
            if (std::find(std::begin(kCommon), std::end(kCommon), group.number)
                != std::end(kCommon)) {
                Append(group.number, group.value.trimmed());
            }
        }
    }

    void Append(int code, const QByteArray& text) { result.Add(source.NewGroup(code, text)); }
    void Append(int code, double number) { Append(code, DxfNumber(number)); }

    void AppendCorner(int corner, double x, double y)
    {
        Append(kX + corner, x);
        Append(kY + corner, y);
    }

    CDxfRawObject Result() const { return result; }

private:
    const CDxfRawObject& source;
    CDxfRawObject result;
};

void AppendPolyline(const std::vector<SPoint>& points, CDrawn& drawn)
{
    drawn.Begin("LWPOLYLINE");
    drawn.Append(90, QByteArray::number(static_cast<qulonglong>(points.size())));
    drawn.Append(38, points.empty() ? 0.0 : points.front().z);
    for (const SPoint& point : points) {
        drawn.AppendCorner(0, point.x, point.y);
    }
}

void AppendCurve(const std::vector<SPoint>& points, CDrawn& drawn)
{
    drawn.Begin("SPLINE");
    for (const SPoint& point : points) {
        drawn.AppendCorner(1, point.x, point.y);
        drawn.Append(kZ + 1, point.z);
    }
}

// A third as wide as it is long.
void AppendArrow(const SPoint& tip, const SPoint& next, double size, CDrawn& drawn)
{
    constexpr double kHalfWidth = 1.0 / 6.0;
    const double length = std::hypot(next.x - tip.x, next.y - tip.y);
    const double x = length > 0 ? (next.x - tip.x) / length * size : size;
    const double y = length > 0 ? (next.y - tip.y) / length * size : 0.0;
    drawn.Begin("SOLID");
    drawn.AppendCorner(0, tip.x, tip.y);
    drawn.AppendCorner(1, tip.x + x - y * kHalfWidth, tip.y + y + x * kHalfWidth);
    drawn.AppendCorner(2, tip.x + x + y * kHalfWidth, tip.y + y - x * kHalfWidth);
    drawn.AppendCorner(3, tip.x + x + y * kHalfWidth, tip.y + y - x * kHalfWidth);
}

} // namespace

double ArrowSizeIn(const CDxfRawObject& style)
{
    const double scale = style.Number(40, 1.0);
    return style.Number(41, kUsualArrowSize) * (scale > 0 ? scale : 1.0);
}

bool HasArrow(const CDxfGroups& leader)
{
    return leader.Integer(kArrow) != 0 && leader.Count(kX) > 1;
}

bool IsCurve(const CDxfGroups& leader)
{
    return leader.Integer(kCurve) != 0 && leader.Count(kX) > 1;
}

void DrawLeader(CDxfRawObject& leader, double arrowSize)
{
    const std::vector<SPoint> points = PointsOf(leader);
    const bool isLine = points.size() > 1;
    CDrawn drawn(leader);
    if (isLine && leader.Integer(kCurve) != 0) {
        AppendCurve(points, drawn);
    } else {
        AppendPolyline(points, drawn);
    }
    if (isLine && leader.Integer(kArrow) != 0) {
        AppendArrow(points[0], points[1], arrowSize, drawn);
    }
    leader = drawn.Result();
}

} // namespace velorx
