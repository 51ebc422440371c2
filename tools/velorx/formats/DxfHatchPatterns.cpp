// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfHatchPatterns.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using VelorExchange::dxf::CHatchLineDXF;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;
constexpr std::size_t kMostLines = 1000; // and dashes of one

enum ECode {
    kBaseX = 43,
    kBaseY = 44,
    kOffsetX = 45,
    kOffsetY = 46,
    kDash = 49,
    kLineAngle = 53,
    kLines = 78,
    kSeeds = 98
};

void Turn(double& x, double& y, double angle)
{
    const double cosine = std::cos(angle * kDegree);
    const double sine = std::sin(angle * kDegree);
    const double before = x;
    x = before * cosine - y * sine;
    y = before * sine + y * cosine;
}

CHatchLineDXF Turned(const CHatchLineDXF& line, double angle)
{
    CHatchLineDXF turned = line;
    turned.angle += angle;
    Turn(turned.baseX, turned.baseY, angle);
    Turn(turned.offsetX, turned.offsetY, angle);
    return turned;
}

bool IsNear(double a, double b, double size)
{
    constexpr double kNear = 1e-6;
    return std::fabs(a - b) <= kNear * std::max(size, 1.0);
}

// Whether two patterns are drawn the same; their bases are of no account, nor is the order.
bool AreAlike(const std::vector<CHatchLineDXF>& one, const std::vector<CHatchLineDXF>& other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const CHatchLineDXF& a, const CHatchLineDXF& b) {
                          const double size = std::hypot(a.offsetX, a.offsetY);
                          return IsNear(a.offsetX, b.offsetX, size)
                              && IsNear(a.offsetY, b.offsetY, size)
                              && a.dashes.size() == b.dashes.size();
                      });
}

} // namespace

void CDxfHatchPatterns::Begin()
{
    lines.clear();
    isInPattern = false;
}

// Some of the codes stand in the boundaries too, with another meaning.
void CDxfHatchPatterns::Take(int code, double value)
{
    if (code == kLines || code == kSeeds) {
        isInPattern = code == kLines;
        return;
    }
    if (!isInPattern) {
        return;
    }
    if (code == kLineAngle && lines.size() < kMostLines) {
        lines.emplace_back();
        lines.back().angle = value;
    }
    if (lines.empty()) {
        return;
    }
    CHatchLineDXF& line = lines.back();
    if (code == kBaseX) {
        line.baseX = value;
    } else if (code == kBaseY) {
        line.baseY = value;
    } else if (code == kOffsetX) {
        line.offsetX = value;
    } else if (code == kOffsetY) {
        line.offsetY = value;
    } else if (code == kDash && line.dashes.size() < kMostLines) {
        line.dashes.push_back(value);
    }
}

void CDxfHatchPatterns::Finish(const SDxfSurveyEntity& entity, const QString& name,
                               CDxfTally& tally)
{
    if (lines.empty()) {
        return;
    }
    SPattern pattern;
    pattern.scale = entity.groups.Number(41, 1.0);
    const double angle = entity.groups.Number(52);
    const double baseX = lines.front().baseX;
    const double baseY = lines.front().baseY;
    for (CHatchLineDXF line : lines) {
        line.baseX -= baseX;
        line.baseY -= baseY;
        pattern.lines.push_back(Turned(line, -angle));
    }
    const QString key = name.toCaseFolded();
    const auto known = patterns.constFind(key);
    if (known == patterns.constEnd()) {
        patterns.insert(key, pattern);
    } else if (!AreAlike(known->lines, pattern.lines)) {
        tally.Lose(EDxfLoss::HatchPatternScales, entity.layer);
    }
}

const CDxfHatchPatterns::SPattern* CDxfHatchPatterns::Find(const QString& name) const
{
    const auto found = patterns.constFind(name.toCaseFolded());
    return found != patterns.constEnd() ? &*found : nullptr;
}

std::vector<CHatchLineDXF> CDxfHatchPatterns::LinesAt(const SPattern& pattern, double angle)
{
    std::vector<CHatchLineDXF> turned;
    turned.reserve(pattern.lines.size());
    for (const CHatchLineDXF& line : pattern.lines) {
        turned.push_back(Turned(line, angle));
    }
    return turned;
}

} // namespace velorx
