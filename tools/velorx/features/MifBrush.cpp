// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifBrush.h"

#include "tools/velorx/features/MifNumbers.h"
#include "tools/velorx/features/MifPen.h"

#include <cmath>

namespace velorx {

using VelorExchange::dxf::CHatchLineDXF;
using VelorExchange::mif::CBrushMIF;

namespace {

constexpr int kNoFill = 1;
constexpr int kSolid = 2;
constexpr quint32 kWhite = 0xFFFFFF;
constexpr double kSpacing = 8.0 * kMifPixel; // a pattern is a tile of eight pixels
constexpr double kPi = 3.141592653589793;
constexpr int kDirections = 4; // of lines, 45 degrees from one to the next

/// A pattern of lines: its number, and the directions of its lines in units of 45 degrees.
struct SLinePattern
{
    int number;
    bool hasDirection[kDirections];
};

constexpr SLinePattern kLinePatterns[] = {
    {3, {true, false, false, false}}, {4, {false, false, true, false}},
    {5, {false, true, false, false}}, {6, {false, false, false, true}},
    {7, {true, false, true, false}},  {8, {false, true, false, true}},
};

/// A pattern of drawings by its name, as far as its directions are not those of most: a slope of 45
/// degrees.
struct SNamedPattern
{
    const char* name;
    int direction;
    bool isCrossed;
};

constexpr SNamedPattern kNamedPatterns[] = {
    {"ANSI37", 1, true}, {"ANSI38", 1, true}, {"LINE", 0, false},   {"NET", 0, true},
    {"NET3", 0, true},   {"CROSS", 0, true},  {"SQUARE", 0, true},  {"GRID", 0, true},
    {"BRICK", 0, true},  {"ANGLE", 0, true},  {"AR-B816", 0, true}, {"AR-B88", 0, true},
    {"DASH", 0, false},  {"MUDST", 0, false}, {"STEEL", 1, false},
};

CHatchLineDXF LineInDirection(int direction)
{
    CHatchLineDXF line;
    line.angle = direction * 45.0;
    line.offsetX = -kSpacing * std::sin(direction * kPi / kDirections);
    line.offsetY = kSpacing * std::cos(direction * kPi / kDirections);
    return line;
}

const SLinePattern* FindLinePattern(int number)
{
    for (const SLinePattern& pattern : kLinePatterns) {
        if (pattern.number == number) {
            return &pattern;
        }
    }
    return nullptr;
}

int DirectionOf(double radians)
{
    if (!std::isfinite(radians)) {
        return 0;
    }
    const int direction =
        static_cast<int>(std::lround(std::fmod(radians, kPi) / (kPi / kDirections)));
    return (direction + kDirections) % kDirections;
}

SNamedPattern NamedPattern(const QString& name)
{
    for (const SNamedPattern& pattern : kNamedPatterns) {
        if (name.compare(QLatin1String(pattern.name), Qt::CaseInsensitive) == 0) {
            return pattern;
        }
    }
    return {"", 1, false};
}

int NumberOf(int direction, bool isCrossed)
{
    for (const SLinePattern& pattern : kLinePatterns) {
        const int across = (direction + kDirections / 2) % kDirections;
        if (pattern.hasDirection[direction] && pattern.hasDirection[across] == isCrossed) {
            return pattern.number;
        }
    }
    return kSolid;
}

// The directions of the lines where they are told, else those that the name stands for.
int NearestPattern(const SFeatureFill& fill)
{
    if (fill.lines.empty()) {
        const SNamedPattern pattern = NamedPattern(fill.pattern);
        const double angle = fill.angle + pattern.direction * kPi / kDirections;
        return NumberOf(DirectionOf(angle), pattern.isCrossed || fill.isDouble);
    }
    const int direction = DirectionOf(fill.lines.front().angle * kPi / 180.0);
    bool isCrossed = fill.isDouble;
    for (const CHatchLineDXF& line : fill.lines) {
        isCrossed = isCrossed || DirectionOf(line.angle * kPi / 180.0) != direction;
    }
    return NumberOf(direction, isCrossed);
}

} // namespace

bool HasDots(const CBrushMIF& brush)
{
    return brush.pattern > kSolid && FindLinePattern(brush.pattern) == nullptr;
}

SFeatureFill FillOfBrush(const CBrushMIF& brush)
{
    SFeatureFill fill;
    fill.color = brush.foreColor;
    if (brush.pattern <= kNoFill) {
        return fill;
    }
    if (brush.pattern == kSolid) {
        fill.kind = EFeatureFill::Solid;
        return fill;
    }
    fill.kind = EFeatureFill::Pattern;
    fill.pattern = MifNumberName(brush.pattern);
    fill.hasBackground = brush.backColor != kWhite;
    fill.background = brush.backColor;
    if (const SLinePattern* pattern = FindLinePattern(brush.pattern)) {
        for (int direction = 0; direction < kDirections; ++direction) {
            if (pattern->hasDirection[direction]) {
                fill.lines.push_back(LineInDirection(direction));
            }
        }
    }
    return fill;
}

SMifBrush BrushOfFill(const SFeatureFill& fill)
{
    SMifBrush result;
    if (fill.kind == EFeatureFill::None) {
        result.brush = {kNoFill, kWhite, fill.color};
    } else if (fill.kind == EFeatureFill::Solid) {
        result.brush = {kSolid, kWhite, fill.color};
    } else {
        const int known = MifNumber(fill.pattern);
        result.brush = {known > kSolid ? known : NearestPattern(fill),
                        fill.hasBackground ? fill.background : kWhite, fill.color};
        result.isNearPattern = known <= kSolid;
    }
    return result;
}

} // namespace velorx
