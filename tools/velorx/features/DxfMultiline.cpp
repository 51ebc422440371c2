// SPDX-License-Identifier: MIT
#include "tools/velorx/features/DxfMultiline.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

namespace {

constexpr int kOffset = 49;
constexpr int kColour = 62;
constexpr int kLineType = 6;
constexpr double kUsualOffset = 0.5;
constexpr double kFlattest = 1e-6; // of the joints that still count as such

CPoint3D Normalised(const CPoint3D& v)
{
    const double length = std::hypot(v.x, v.y);
    return length > 0 ? CPoint3D{v.x / length, v.y / length, 0.0} : CPoint3D{};
}

} // namespace

std::vector<SMultilineElement> ElementsOf(const CMLineStyleGroups* groups, double scale)
{
    std::vector<SMultilineElement> elements;
    for (const auto& [code, value] : groups != nullptr ? *groups : CMLineStyleGroups()) {
        if (code == kOffset) {
            elements.push_back({value.toDouble() * scale, SMultilineElement().colour, QString()});
        } else if (!elements.empty() && code == kColour) {
            elements.back().colour = value.toInt();
        } else if (!elements.empty() && code == kLineType) {
            elements.back().lineType = value;
        }
    }
    if (elements.empty()) {
        elements.resize(2);
        elements[0].offset = kUsualOffset * scale;
        elements[1].offset = -kUsualOffset * scale;
    }
    return elements;
}

// A joint leads across the axis at a slant and so is longer than the line's distance.
CFeatureLine LineBeside(const CMLineDXF& mline, double offset)
{
    CFeatureLine line;
    line.reserve(mline.vertices.size());
    for (std::size_t i = 0; i < mline.vertices.size(); ++i) {
        const CPoint3D& vertex = mline.vertices[i].point;
        CPoint3D across;
        if (i < mline.segments.size()) {
            const CPoint3D direction = Normalised(mline.segments[i].direction);
            const CPoint3D miter = Normalised(mline.segments[i].miter);
            const double part = miter.y * direction.x - miter.x * direction.y;
            across = std::fabs(part) > kFlattest ? CPoint3D{miter.x / part, miter.y / part, 0.0}
                                                 : CPoint3D{-direction.y, direction.x, 0.0};
        }
        line.push_back({vertex.x + offset * across.x, vertex.y + offset * across.y, vertex.z});
    }
    return line;
}

} // namespace velorx
