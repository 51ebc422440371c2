// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Colour.h"
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Finite_p.h"

#include <algorithm>
#include <iterator>

namespace VelorExchange::dxf {

namespace {

constexpr quint32 kByLayerColor = 256;
constexpr int kNewVersion = 1018;
// Group 420 of black, which would vanish on a black screen.
constexpr int kDarkGrey = 0x333333;

struct CLineWeight
{
    double millimetres;
    int group370;
};

constexpr CLineWeight kLineWeights[] = {
    {0, 0},      {0.05, 5},  {0.09, 9},  {0.13, 13},  {0.15, 15}, {0.18, 18},
    {0.2, 20},   {0.25, 25}, {0.3, 30},  {0.35, 35},  {0.4, 40},  {0.5, 50},
    {0.53, 53},  {0.6, 60},  {0.7, 70},  {0.8, 80},   {0.9, 90},  {1, 100},
    {1.06, 106}, {1.2, 120}, {1.4, 140}, {1.58, 158}, {2, 200},   {2.11, 211}};

int TrueColor(quint32 color)
{
    if (color == 0) {
        return kDarkGrey;
    }
    const quint32 red = color & 0xFFU;
    const quint32 green = color >> 8U & 0xFFU;
    const quint32 blue = color >> 16U & 0xFFU;
    return static_cast<int>(red << 16U | green << 8U | blue);
}

} // namespace

void CDXFWriterImpl::WriteNewHandle(int code)
{
    output.WriteHandle(code, nextHandle++);
}

void CDXFWriterImpl::WriteStart(std::string_view name, const CName& layer)
{
    output.WriteAscii(0, name);
    WriteNewHandle();
    output.WriteTag(100, "AcDbEntity");
    WriteLayer(layer);
}

void CDXFWriterImpl::WriteLayer(const CName& layer)
{
    if (IsInBlock()) {
        output.WriteTag(8, "0");
    } else {
        output.WriteEncoded(8, layer.text);
    }
}

void CDXFWriterImpl::WriteColor(quint32 color)
{
    if (color == kByBlockColor || (!blockColorFlags.empty() && blockColorFlags.back())) {
        output.WriteTag(62, 0);
        return;
    }
    output.WriteTag(62, ColorIndex(color));
    if (version == kNewVersion && color != kByLayerColor) {
        output.WriteTag(420, TrueColor(color));
    }
}

int CDXFWriterImpl::ColorIndex(quint32 color)
{
    constexpr quint32 kSpread = 2654435761U; // the golden ratio of 32 bits
    CKnownColor& known = knownColors[color * kSpread >> 24U];
    if (known.color != color) {
        known = {color, RGB2NumColACAD(color)};
    }
    return known.index;
}

// The next heavier of the weights that the format knows; none for what is heavier than all.
void CDXFWriterImpl::WriteLineWeight(double weight)
{
    const auto* const found = std::lower_bound(
        std::begin(kLineWeights), std::end(kLineWeights), Scaled(weight),
        [](const CLineWeight& entry, double wanted) { return entry.millimetres < wanted; });
    if (found != std::end(kLineWeights)) {
        output.WriteTag(370, found->group370);
    }
}

// What has to hold before the head of a record can be written.
bool CDXFWriterImpl::PlanHead(const CEntityDXF& record, CLineStylePlan& plan)
{
    TakeScale();
    return AreFinite(Scaled(record.lineWeight)) && PlanLineStyle(record.lineStyle, plan);
}

void CDXFWriterImpl::WriteEntityHead(const CEntityDXF& record, const CLineStylePlan& plan,
                                     std::string_view subclass, std::string_view name)
{
    const CName& layer = Layer(record.layer);
    const CName* const lineStyle = LineStyle(record.lineStyle, plan);
    WriteStart(name, layer);
    if (lineStyle != nullptr) {
        output.WriteEncoded(6, lineStyle->text);
    }
    WriteColor(record.color);
    WriteLineWeight(record.lineWeight);
    output.WriteAscii(100, subclass);
}

void CDXFWriterImpl::WriteSequenceEnd(const CName& layer)
{
    WriteStart("SEQEND", layer);
}

void CDXFWriterImpl::WritePoint(int code, const CPoint2D& point)
{
    output.WriteReal(code, point.x);
    output.WriteReal(code + 10, point.y);
}

void CDXFWriterImpl::WritePoint(int code, const CPoint3D& point)
{
    output.WriteReal(code, point.x);
    output.WriteReal(code + 10, point.y);
    output.WriteReal(code + 20, point.z);
}

} // namespace VelorExchange::dxf
