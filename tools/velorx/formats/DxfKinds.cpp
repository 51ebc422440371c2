// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfKinds.h"

#include <boost/variant2/variant.hpp>

namespace velorx {

using namespace VelorExchange::dxf;

namespace {

static_assert(kCircle == boost::variant2::variant_size<CEntityVariantDXF>::value);

struct SKind
{
    const char* name;
    const char* operation;
};

constexpr SKind kKindTable[kDxfKinds] = {
    {"POINT", "OnPoint"},       {"LINE", "OnLine"},     {"XLINE", "OnXLine"},
    {"ARC", "OnArc"},           {"SPLINE", "OnSpline"}, {"LWPOLYLINE", "OnLWPolyline"},
    {"POLYLINE", "OnPolyline"}, {"TEXT", "OnText"},     {"MTEXT", "OnMText"},
    {"SOLID", "OnSolid"},       {"HATCH", "OnHatch"},   {"3DFACE", "On3DFace"},
    {"IMAGE", "OnImage"},       {"RAY", "OnRay"},       {"MLINE", "OnMLine"},
    {"ATTDEF", nullptr},        {"INSERT", "OnInsert"}, {"ELLIPSE", "OnEllipse"},
    {"CIRCLE", "OnArc"},
};

} // namespace

const char* EntityName(std::size_t index)
{
    return kKindTable[index].name;
}

const char* EntityOperation(std::size_t index)
{
    return kKindTable[index].operation;
}

EDxfKind KindOf(const CArcDXF& arc)
{
    return arc.startAngle == arc.endAngle ? kCircle : kArc;
}

EDxfKind KindOf(const CEntityVariantDXF& entity)
{
    const auto* arc = boost::variant2::get_if<CArcDXF>(&entity);
    return arc != nullptr ? KindOf(*arc) : static_cast<EDxfKind>(entity.index());
}

} // namespace velorx
