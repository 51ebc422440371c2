// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfTextPlace.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using VelorExchange::CPoint2D;

namespace {

constexpr double kMicrometres = 1e6; // thousandths of a millimetre in a metre
constexpr double kLetterWidth = 0.6; // of the height, in a common typeface

/// Which share of a text lies ahead of its place.
double ShareAhead(EFeatureAlign along)
{
    switch (along) {
    case EFeatureAlign::Centre:
        return 0.5;
    case EFeatureAlign::Right:
        return 1.0;
    case EFeatureAlign::Left:
        break;
    }
    return 0.0;
}

} // namespace

double OnGround(double height, int scale)
{
    return height * scale / kMicrometres;
}

double OnPaper(double length, int scale)
{
    return length * kMicrometres / scale;
}

double TextLength(const QString& text, double height)
{
    int longest = 1;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        longest = std::max(longest, line.size());
    }
    return longest * height * kLetterWidth;
}

SSxfTextLine MakeTextLine(const CPoint2D& place, double rotation, double length,
                          EFeatureAlign along)
{
    const CPoint2D step = {std::sin(rotation) * length, std::cos(rotation) * length};
    const double ahead = ShareAhead(along);
    const CPoint2D first = {place.x - step.x * ahead, place.y - step.y * ahead};
    return {first, {first.x + step.x, first.y + step.y}};
}

CPoint2D PointAlong(const SSxfTextLine& line, EFeatureAlign along)
{
    const double ahead = ShareAhead(along);
    return {line.first.x + (line.last.x - line.first.x) * ahead,
            line.first.y + (line.last.y - line.first.y) * ahead};
}

} // namespace velorx
