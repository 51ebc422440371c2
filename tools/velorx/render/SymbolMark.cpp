// SPDX-License-Identifier: MIT
#include "tools/velorx/render/SymbolMark.h"

#include "tools/velorx/render/Picture.h"
#include "tools/velorx/render/PictureView.h"

#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace velorx {

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kLeastSize = 3.0;
constexpr double kUsualSize = 8.0;
constexpr double kGreatestSize = 64.0;
constexpr double kDot = 3.0;

enum class EMark { Dot, Square, Diamond, Circle, Star, Up, Down, Plus, Cross, Nothing };

struct SMark
{
    int shape;
    EMark mark;
    bool isFilled;
};

constexpr SMark kMarks[] = {
    {0, EMark::Dot, true},       {31, EMark::Nothing, false}, {32, EMark::Square, true},
    {33, EMark::Diamond, true},  {34, EMark::Circle, true},   {35, EMark::Star, true},
    {36, EMark::Up, true},       {37, EMark::Down, true},     {38, EMark::Square, false},
    {39, EMark::Diamond, false}, {40, EMark::Circle, false},  {41, EMark::Star, false},
    {42, EMark::Up, false},      {43, EMark::Down, false},    {49, EMark::Plus, false},
    {50, EMark::Cross, false},
};

SMark Find(const SFeatureSymbol& symbol)
{
    for (const SMark& mark : kMarks) {
        if (mark.shape == symbol.shape && symbol.font.isEmpty()) {
            return mark;
        }
    }
    return {symbol.shape, EMark::Circle, false};
}

// Corners on a circle around the middle, the first one on top; every second one at `inner` of the radius.
QPainterPath Corners(int count, double radius, double inner, double turn)
{
    QPolygonF ring;
    for (int i = 0; i < count; ++i) {
        const double angle = turn + 2 * M_PI * i / count;
        const double reach = i % 2 == 0 ? radius : radius * inner;
        ring.append({reach * std::sin(angle), -reach * std::cos(angle)});
    }
    QPainterPath path;
    path.addPolygon(ring);
    path.closeSubpath();
    return path;
}

QPainterPath Bars(double radius)
{
    QPainterPath path;
    path.moveTo(-radius, 0);
    path.lineTo(radius, 0);
    path.moveTo(0, -radius);
    path.lineTo(0, radius);
    return path;
}

QPainterPath Disc(double radius)
{
    QPainterPath path;
    path.addEllipse(QPointF(0, 0), radius, radius);
    return path;
}

QPainterPath Outline(EMark mark, double radius)
{
    constexpr double kStarInner = 0.4;
    switch (mark) {
    case EMark::Dot:
    case EMark::Circle:
        return Disc(radius);
    case EMark::Square:
        return Corners(4, radius, 1.0, M_PI / 4);
    case EMark::Diamond:
        return Corners(4, radius, 1.0, 0.0);
    case EMark::Star:
        return Corners(10, radius, kStarInner, 0.0);
    case EMark::Up:
        return Corners(3, radius, 1.0, 0.0);
    case EMark::Down:
        return Corners(3, radius, 1.0, M_PI);
    case EMark::Plus:
        return Bars(radius);
    case EMark::Cross:
        return QTransform().rotate(45).map(Bars(radius));
    case EMark::Nothing:
        break;
    }
    return {};
}

double SizeOf(const SFeatureSymbol& symbol, EMark mark)
{
    if (mark == EMark::Dot) {
        return kDot;
    }
    const double pixels = symbol.size / kPointsPerInch * kPixelsPerInch;
    return pixels > 0 ? std::clamp(pixels, kLeastSize, kGreatestSize) : kUsualSize;
}

} // namespace

bool IsEmptyBlock(const SPointFeature& point)
{
    return std::strcmp(point.kind, "INSERT") == 0;
}

SSymbolMark MarkFor(const SFeatureSymbol& symbol)
{
    const SMark found = Find(symbol);
    const QPainterPath outline = Outline(found.mark, SizeOf(symbol, found.mark) / 2);
    const double turn = IsDrawable(symbol.angle) ? symbol.angle * 180 / M_PI : 0.0;
    return {QTransform().rotate(-turn).map(outline), found.isFilled};
}

} // namespace velorx
