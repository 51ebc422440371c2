// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifPen.h"

#include "tools/velorx/features/MifNumbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace velorx {

using VelorExchange::mif::CPenMIF;

namespace {

constexpr int kInvisible = 1;
constexpr int kSolid = 2;
constexpr int kFirstDashed = 3;
constexpr int kPatterns = 128; // a pattern's number has seven bits, the eighth shifts the dashes
constexpr int kMostPixels = 7;
constexpr int kFirstInPoints = 11;
constexpr int kPointsBase = 10;
constexpr int kWidest = 2047;
constexpr double kTenthOfPoint = 25.4 / 720.0; // mm

using CDashes = std::vector<double>;

// Pixels of dash and gap in turn, from pattern 3 on.
const std::vector<CDashes>& PixelPatterns()
{
    static const std::vector<CDashes> patterns = {
        {1, 1},
        {2, 1},
        {3, 1},
        {6, 1},
        {12, 2},
        {24, 4},
        {4, 3},
        {1, 4},
        {4, 6},
        {6, 4},
        {12, 12},
        {8, 2, 1, 2},
        {12, 1, 1, 1},
        {12, 1, 3, 1},
        {24, 6, 4, 6},
        {24, 3, 3, 3, 3, 3},
        {24, 3, 3, 3, 3, 3, 3, 3},
        {6, 3, 1, 3, 1, 3},
        {12, 2, 1, 2, 1, 2},
        {12, 2, 1, 2, 1, 2, 1, 2},
        {4, 1, 1, 1},
        {4, 1, 1, 1, 1, 1},
        {4, 1, 1, 1, 2, 1, 1, 1},
    };
    return patterns;
}

using CLineTypes = std::array<std::shared_ptr<const SFeatureLineType>, kPatterns>;

CLineTypes MakeLineTypes()
{
    CLineTypes types;
    for (int pattern = kFirstDashed; pattern < kPatterns; ++pattern) {
        auto type = std::make_shared<SFeatureLineType>();
        type->name = MifNumberName(pattern);
        const auto index = static_cast<std::size_t>(pattern - kFirstDashed);
        if (index < PixelPatterns().size()) {
            double sign = kMifPixel;
            for (const double pixels : PixelPatterns()[index]) {
                type->dashes.push_back(pixels * sign);
                sign = -sign;
            }
        }
        types[static_cast<std::size_t>(pattern)] = std::move(type);
    }
    return types;
}

int PatternOf(const CPenMIF& pen)
{
    return pen.pattern & (kPatterns - 1);
}

double PaperWidth(int width)
{
    if (width <= 1) {
        return 0.0;
    }
    return width < kFirstInPoints ? width * kMifPixel : (width - kPointsBase) * kTenthOfPoint;
}

// Whole pixels first, so that a pen that was read comes out as it was.
int PenWidth(double millimetres)
{
    if (!(millimetres > 0.0)) {
        return 1;
    }
    const double pixels = millimetres / kMifPixel;
    const double whole = std::round(pixels);
    if (whole >= 2 && whole <= kMostPixels && std::fabs(pixels - whole) < 1e-6) {
        return static_cast<int>(whole);
    }
    const double points = std::round(millimetres / kTenthOfPoint) + kPointsBase;
    return static_cast<int>(std::clamp<double>(points, kFirstInPoints, kWidest));
}

// Lengths of dash and gap in turn, the longest dash first, as parts of one. A dot has the length of
// the least dash there is. Empty if that is no pattern.
CDashes Shape(const CDashes& dashes)
{
    constexpr double kDot = 1.0 / 12.0;
    const double length = std::accumulate(dashes.begin(), dashes.end(), 0.0,
                                          [](double sum, double d) { return sum + std::fabs(d); });
    CDashes shape;
    bool isDash = false;
    for (const double dash : dashes) {
        const double part = dash == 0.0 ? kDot : std::fabs(dash) / length;
        if (shape.empty() || isDash != (dash >= 0.0)) {
            shape.push_back(part);
        } else {
            shape.back() += part;
        }
        isDash = dash >= 0.0;
    }
    if (!(length > 0.0) || shape.size() % 2 != 0 || dashes.front() < 0.0) {
        return {};
    }
    auto longest = shape.begin();
    for (auto at = shape.begin(); at != shape.end(); at += 2) {
        longest = *at > *longest ? at : longest;
    }
    std::rotate(shape.begin(), longest, shape.end());
    return shape;
}

// How far two patterns are from each other. One of another number of dashes is farther than any of the same.
double Distance(const CDashes& one, const CDashes& other)
{
    double sum =
        10.0 * std::abs(static_cast<double>(one.size()) - static_cast<double>(other.size()));
    for (std::size_t i = 0; i < std::min(one.size(), other.size()); ++i) {
        sum += std::fabs(one[i] - other[i]);
    }
    return sum;
}

int NearestPattern(const CDashes& dashes)
{
    const CDashes wanted = Shape(dashes);
    if (wanted.empty()) {
        return kSolid;
    }
    const auto& patterns = PixelPatterns();
    std::vector<double> distances;
    for (const CDashes& pixels : patterns) {
        CDashes pattern = pixels;
        for (std::size_t i = 1; i < pattern.size(); i += 2) {
            pattern[i] = -pattern[i];
        }
        distances.push_back(Distance(wanted, Shape(pattern)));
    }
    const auto nearest = std::min_element(distances.begin(), distances.end());
    return kFirstDashed + static_cast<int>(nearest - distances.begin());
}

} // namespace

bool HasMarks(const CPenMIF& pen)
{
    return PatternOf(pen) >= kFirstDashed + static_cast<int>(PixelPatterns().size());
}

SFeatureStroke StrokeOfPen(const CPenMIF& pen)
{
    static const CLineTypes types = MakeLineTypes();
    SFeatureStroke stroke;
    stroke.isVisible = PatternOf(pen) != kInvisible;
    stroke.color = pen.color;
    stroke.width = PaperWidth(pen.width);
    stroke.lineType = types[static_cast<std::size_t>(PatternOf(pen))];
    return stroke;
}

SMifPen PenOfStroke(const SFeatureStroke& stroke)
{
    SMifPen result;
    result.pen = {PenWidth(stroke.width), kSolid, stroke.color};
    result.isCut =
        result.pen.width == kWidest && stroke.width > PaperWidth(kWidest) + kTenthOfPoint;
    if (!stroke.isVisible) {
        result.pen.pattern = kInvisible;
    } else if (stroke.lineType != nullptr) {
        const int known = MifNumber(stroke.lineType->name);
        if (known >= kFirstDashed && known < kPatterns) {
            result.pen.pattern = known;
        } else if (!stroke.lineType->dashes.empty()) {
            result.pen.pattern = NearestPattern(stroke.lineType->dashes);
            result.isNearType = true;
        }
    }
    return result;
}

} // namespace velorx
