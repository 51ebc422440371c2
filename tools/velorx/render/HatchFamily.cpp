// SPDX-License-Identifier: MIT
#include "tools/velorx/render/HatchFamily.h"

#include "tools/velorx/features/MifNumbers.h"
#include "tools/velorx/render/StandardPatterns.h"

#include <algorithm>
#include <cmath>

namespace velorx {

namespace {

using VelorExchange::dxf::CHatchLineDXF;

constexpr double kDegree = M_PI / 180.0;
constexpr double kAcross = 90.0;
constexpr double kMostInk = 0.4; // of an area, so that lines can be told apart
constexpr double kNoGap = 1e-9;

// Small areas get finer patterns, so that something of them shows.
double StandardScale(double shorterExtent)
{
    constexpr double kRoomyArea = 40.0;
    constexpr double kFinest = 0.5;
    return std::clamp(shorterExtent / kRoomyArea, kFinest, 1.0);
}

std::vector<CHatchLineDXF> StandardLines(const SFeatureFill& fill)
{
    std::vector<CHatchLineDXF> lines = StandardPattern(fill.pattern);
    if (fill.isDouble) {
        const std::vector<CHatchLineDXF> once = lines;
        for (CHatchLineDXF line : once) {
            line.angle += kAcross;
            lines.push_back(line);
        }
    }
    return lines;
}

// The offsets of a standard pattern's lines lie along and across the line.
SHatchFamily StandardFamily(const CHatchLineDXF& line, double angle, double scale)
{
    const double direction = line.angle * kDegree + angle;
    const QPointF along(std::cos(direction), -std::sin(direction));
    const QPointF across(along.y(), -along.x());
    const QPointF east(std::cos(angle), -std::sin(angle));
    const QPointF north(east.y(), -east.x());
    return {(east * line.baseX + north * line.baseY) * scale, along,
            (along * line.offsetX + across * line.offsetY) * scale, CDashes(line.dashes, scale)};
}

SHatchFamily SourceFamily(const CHatchLineDXF& line, const CPictureView& view, double spread)
{
    const double scale = view.Pixels(1.0) * spread;
    const double direction = line.angle * kDegree;
    return {view.Map(line.baseX, line.baseY),
            {std::cos(direction), -std::sin(direction)},
            QPointF(line.offsetX, -line.offsetY) * scale,
            CDashes(line.dashes, scale)};
}

bool IsDrawableLine(const CHatchLineDXF& line)
{
    return IsDrawable(line.angle) && IsDrawable(line.baseX) && IsDrawable(line.baseY)
        && IsDrawable(line.offsetX) && IsDrawable(line.offsetY)
        && std::all_of(line.dashes.begin(), line.dashes.end(), IsDrawable);
}

// The part of an area that lines cover which are a pixel wide.
double InkOf(const std::vector<SHatchFamily>& families)
{
    double ink = 0.0;
    for (const SHatchFamily& family : families) {
        const double gap = std::abs(family.Gap());
        ink += gap > kNoGap ? family.dashes.Ink() / gap : 0.0;
    }
    return ink;
}

std::vector<SHatchFamily> SourceFamilies(const std::vector<CHatchLineDXF>& lines,
                                         const CPictureView& view, double spread)
{
    std::vector<SHatchFamily> families;
    for (const CHatchLineDXF& line : lines) {
        if (IsDrawableLine(line)) {
            families.push_back(SourceFamily(line, view, spread));
        }
    }
    return families;
}

} // namespace

std::vector<SHatchFamily> HatchFamilies(const SFeatureFill& fill, const CPictureView& view,
                                        double shorterExtent)
{
    // A brush is measured on paper, whatever the unit of its file.
    if (!fill.lines.empty() && MifNumber(fill.pattern) == 0) {
        std::vector<SHatchFamily> families = SourceFamilies(fill.lines, view, 1.0);
        double spread = 1.0;
        constexpr double kLeastSpread = 1.25;
        constexpr double kMostSpread = 1e9;
        // Dashes that were too fine to be seen come back as lines are spread, so this takes rounds.
        while (InkOf(families) > kMostInk && spread < kMostSpread) {
            spread *= std::max(kLeastSpread, InkOf(families) / kMostInk);
            families = SourceFamilies(fill.lines, view, spread);
        }
        return families;
    }
    std::vector<SHatchFamily> families;
    const double angle = IsDrawable(fill.angle) ? fill.angle : 0.0;
    for (const CHatchLineDXF& line : StandardLines(fill)) {
        families.push_back(StandardFamily(line, angle, StandardScale(shorterExtent)));
    }
    return families;
}

} // namespace velorx
