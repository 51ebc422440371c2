// SPDX-License-Identifier: MIT
#include "tools/velorx/features/DxfPatternLines.h"

#include "tools/velorx/formats/DxfHatchOutlines.h"
#include "VelorExchange/dxf/records/Hatch.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;
constexpr double kUsualSlant = 45.0;
constexpr double kMostLines = 2000.0; // across an area; programs refuse more

struct SPattern
{
    const char* name;
    double slant; ///< Degrees.
    bool isDouble;
};

// Patterns whose lines run otherwise than at 45 degrees.
constexpr SPattern kPatterns[] = {
    {"LINE", 0, false},   {"NET", 0, true},     {"NET3", 0, true},  {"SQUARE", 0, true},
    {"ANGLE", 0, true},   {"CROSS", 0, true},   {"GRID", 0, true},  {"BRICK", 0, true},
    {"ANSI37", 45, true}, {"ANSI38", 45, true}, {"DASH", 0, false},
};

// The plain line in the direction `degrees`.
CHatchLineDXF PlainLine(double degrees, const CFeatureLine& ring)
{
    CHatchDXF hatch; // as the reader would deliver it
    hatch.angle = degrees - kUsualSlant;
    return PlainLines(hatch, ring).front();
}

// Brushes of tables are measured on paper: of their lines the directions hold.
bool IsOnPaper(const SFeatureFill& fill)
{
    return fill.pattern.startsWith(QLatin1String("MIF "));
}

bool AreTooMany(const std::vector<CHatchLineDXF>& lines, const CFeatureLine& ring)
{
    const CHatchLineDXF plain = PlainLine(0, ring); // a fortieth of the extent apart
    const double least = 40 * std::hypot(plain.offsetX, plain.offsetY) / kMostLines;
    return std::any_of(lines.begin(), lines.end(), [least](const CHatchLineDXF& line) {
        const double angle = line.angle * kDegree;
        const double gap = line.offsetY * std::cos(angle) - line.offsetX * std::sin(angle);
        return !(std::fabs(gap) >= least);
    });
}

CPoint3D MiddleOf(const CFeatureLine& ring)
{
    CPoint3D middle;
    for (const CPoint3D& vertex : ring) {
        middle.x += vertex.x / static_cast<double>(ring.size());
        middle.y += vertex.y / static_cast<double>(ring.size());
    }
    return middle;
}

} // namespace

bool HasLinesToDraw(const SFeatureFill& fill, const CFeatureLine& ring)
{
    return !fill.lines.empty() && !IsOnPaper(fill) && !AreTooMany(fill.lines, ring);
}

std::vector<CHatchLineDXF> PatternLines(const SFeatureFill& fill, const CFeatureLine& ring)
{
    std::vector<CHatchLineDXF> lines;
    if (HasLinesToDraw(fill, ring)) {
        const CPoint3D middle = MiddleOf(ring);
        lines = fill.lines;
        for (CHatchLineDXF& line : lines) {
            line.baseX -= middle.x;
            line.baseY -= middle.y;
        }
        return lines;
    }
    for (const CHatchLineDXF& line : fill.lines) {
        lines.push_back(PlainLine(line.angle, ring));
    }
    if (lines.empty()) {
        double angle = fill.angle / kDegree + kUsualSlant;
        bool isDouble = fill.isDouble;
        for (const SPattern& pattern : kPatterns) {
            if (fill.pattern.compare(QLatin1String(pattern.name), Qt::CaseInsensitive) == 0) {
                angle += pattern.slant - kUsualSlant;
                isDouble = isDouble || pattern.isDouble;
            }
        }
        lines.push_back(PlainLine(angle, ring));
        if (isDouble) {
            constexpr double kAcross = 90.0;
            lines.push_back(PlainLine(angle + kAcross, ring));
        }
    }
    return lines;
}

} // namespace velorx
