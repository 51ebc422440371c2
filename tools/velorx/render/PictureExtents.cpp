// SPDX-License-Identifier: MIT
#include "tools/velorx/render/PictureExtents.h"

#include "tools/velorx/render/ImageFrame.h"
#include "tools/velorx/render/SymbolMark.h"
#include "tools/velorx/render/TextLayout.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstring>

namespace velorx {

namespace {

constexpr std::size_t kFirst = 4096;
constexpr double kFar = 50.0; // times the extent of all that is nearer
constexpr double kLostPart = 0.02;
constexpr const char* kEndless[] = {"RAY", "XLINE"};

SPlanBox BoxOf(const CFeatureLine& points)
{
    SPlanBox box;
    for (const VelorExchange::CPoint3D& point : points) {
        if (IsDrawable(point.x) && IsDrawable(point.y)) {
            box.Add(point.x, point.y);
        }
    }
    return box;
}

// With the half of a wide line that lies beyond its axis.
SPlanBox Widened(SPlanBox box, const SFeatureStroke& stroke)
{
    const double half = stroke.isVisible ? stroke.planWidth / 2 : 0.0;
    if (!box.isEmpty && half > 0 && IsDrawable(half)) {
        box.Add(box.left - half, box.bottom - half);
        box.Add(box.right + half, box.top + half);
    }
    return box;
}

// Of the nearest point of `box`, in the greater of both directions.
double DistanceFrom(double x, double y, const SPlanBox& box)
{
    return std::max({box.left - x, x - box.right, box.bottom - y, y - box.top, 0.0});
}

template <class TCoordinate>
double Median(const std::vector<SPlanBox>& boxes, const TCoordinate& coordinate)
{
    std::vector<double> values;
    values.reserve(boxes.size());
    for (const SPlanBox& box : boxes) {
        values.push_back(coordinate(box));
    }
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return values.empty() ? 0.0 : *middle;
}

} // namespace

bool CPictureExtents::IsDrawn(const SFeature& feature)
{
    const bool isEndless =
        std::any_of(std::begin(kEndless), std::end(kEndless),
                    [&feature](const char* kind) { return std::strcmp(kind, feature.kind) == 0; });
    return layers.Judge(feature.layer) == CLayerChoice::EVerdict::Drawn && !isEndless;
}

void CPictureExtents::Add(const SPlanBox& box)
{
    if (box.isEmpty) {
        return;
    }
    if (hasMiddle) {
        Sort(box);
        return;
    }
    first.push_back(box);
    if (first.size() >= kFirst) {
        FindMiddle();
    }
}

void CPictureExtents::FindMiddle()
{
    middleX = Median(first, [](const SPlanBox& box) { return box.left / 2 + box.right / 2; });
    middleY = Median(first, [](const SPlanBox& box) { return box.bottom / 2 + box.top / 2; });
    hasMiddle = true;
    for (const SPlanBox& box : first) {
        Sort(box);
    }
    first.clear();
}

void CPictureExtents::Sort(const SPlanBox& box)
{
    const double distance = DistanceFrom(middleX, middleY, box);
    SRange& range = ranges[distance > 0 ? std::ilogb(distance) : INT_MIN];
    range.box.Add(box);
    range.count += 1;
}

SPlanBox CPictureExtents::Box()
{
    FindMiddle();
    double left = 0.0;
    for (const auto& entry : ranges) {
        left += entry.second.count;
    }
    const double few = left * kLostPart;
    SPlanBox box;
    for (const auto& [power, range] : ranges) {
        const double extent = std::max(box.Width(), box.Height());
        const bool isFar = extent > 0 && std::ldexp(1.0, power) > extent * kFar;
        if (isFar && left <= few) {
            break;
        }
        box.Add(range.box);
        left -= range.count;
    }
    return box;
}

const char* CPictureExtents::Take(const SPointFeature& point)
{
    if (IsDrawn(point) && !IsEmptyBlock(point)) {
        Add(BoxOf({point.position}));
    }
    return nullptr;
}

const char* CPictureExtents::Take(const SLineFeature& line)
{
    if (IsDrawn(line)) {
        Add(Widened(BoxOf(line.points), line.stroke));
    }
    return nullptr;
}

const char* CPictureExtents::Take(const SAreaFeature& area)
{
    SPlanBox box;
    for (const CFeatureLine& ring : area.rings) {
        box.Add(BoxOf(ring));
    }
    if (IsDrawn(area)) {
        Add(Widened(box, area.stroke));
    }
    return nullptr;
}

const char* CPictureExtents::Take(const STextFeature& text)
{
    if (IsDrawn(text)) {
        letters += text.text.size();
        Add(CTextLayout(text).Box());
    }
    return nullptr;
}

const char* CPictureExtents::Take(const SImageFeature& image)
{
    if (IsDrawn(image)) {
        Add(BoxOf(ImageRing(image)));
    }
    return nullptr;
}

} // namespace velorx
