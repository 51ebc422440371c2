// SPDX-License-Identifier: MIT
// The loop over entities, which ENTITIES and blocks share, and what all entities have in common.
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

#include "VelorExchange/dxf/write/Colour.h"

#include <QLatin1String>

#include <algorithm>

namespace VelorExchange::dxf {

namespace {

constexpr int kAbsentColor = -2;
constexpr char kByLayer[] = "BYLAYER";

bool IsCapitalOrDigit(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool IsByLayer(const QString& lineType)
{
    return lineType.compare(QLatin1String(kByLayer), Qt::CaseInsensitive) == 0;
}

// 0xRRGGBB to 0x00BBGGRR.
quint32 Swapped(quint32 rgb)
{
    return (rgb & 0xFFU) << 16U | (rgb & 0xFF00U) | (rgb >> 16U & 0xFFU);
}

} // namespace

struct CDXFReaderImpl::CEntityName
{
    std::string_view name;
    CParser parser;
};

const CDXFReaderImpl::CEntityName CDXFReaderImpl::kEntityNames[] = {
    {"ATTDEF", &CDXFReaderImpl::ReadAttDef},     {"POINT", &CDXFReaderImpl::ReadPoint},
    {"XLINE", &CDXFReaderImpl::ReadXLine},       {"LINE", &CDXFReaderImpl::ReadLine},
    {"TEXT", &CDXFReaderImpl::ReadText},         {"SPLINE", &CDXFReaderImpl::ReadSpline},
    {"POLYLINE", &CDXFReaderImpl::ReadPolyline}, {"LWPOLYLINE", &CDXFReaderImpl::ReadLWPolyline},
    {"MLINE", &CDXFReaderImpl::ReadMLine},       {"MTEXT", &CDXFReaderImpl::ReadMText},
    {"ARC", &CDXFReaderImpl::ReadArc},           {"CIRCLE", &CDXFReaderImpl::ReadArc},
    {"SOLID", &CDXFReaderImpl::ReadSolid},       {"HATCH", &CDXFReaderImpl::ReadHatch},
    {"3DFACE", &CDXFReaderImpl::Read3DFace},     {"RAY", &CDXFReaderImpl::ReadRay},
    {"IMAGE", &CDXFReaderImpl::ReadImage},       {"ELLIPSE", &CDXFReaderImpl::ReadEllipse},
    {"INSERT", &CDXFReaderImpl::ReadInsert},
};

bool CDXFReaderImpl::ReadEntityLoop(CDXFTag& tag)
{
    while (tag.code != CDXFTag::kNoCode) {
        ReportPosition();
        const CParser parser = tag.code == 0 ? ParserOf(tag) : nullptr;
        if (parser != nullptr) {
            tag = (this->*parser)();
        } else if (input.Is(tag, 0, "ENDSEC") || input.Is(tag, 0, "ENDBLK")) {
            return true;
        } else {
            tag = input.ReadLoneTag();
        }
    }
    return false;
}

// Nearly all files write the names in capitals, so these are looked for first.
CDXFReaderImpl::CParser CDXFReaderImpl::ParserOf(const CDXFTag& tag) const
{
    const std::string_view bytes = input.Bytes(tag.value);
    for (const CEntityName& entity : kEntityNames) {
        if (bytes == entity.name) {
            return entity.parser;
        }
    }
    if (std::all_of(bytes.begin(), bytes.end(), IsCapitalOrDigit)) {
        return nullptr;
    }
    for (const CEntityName& entity : kEntityNames) {
        if (input.Is(tag, 0, entity.name)) {
            return entity.parser;
        }
    }
    return nullptr;
}

void CDXFReaderImpl::FillName(CNameCache::CName& name, const QString& text) const
{
    name.text = text;
    name.layer = layers.Find(text);
    const bool hasLineType = name.layer != nullptr && !IsByLayer(name.layer->lineType);
    name.lineType = hasLineType ? name.layer->lineType : QStringLiteral("CONTINUOUS");
}

// A text that comes once and is short is decoded, and looked up among the layers, once for all objects
// that have it. Null for any other.
const CNameCache::CName* CDXFReaderImpl::KnownName(int code)
{
    CTextSpan span{};
    if (!tags.Single(code, span) || span.size > CNameCache::kLongestName
        || span.source != CTextSpan::Buffer)
    {
        return nullptr;
    }
    if (namesDecoder != input.DecoderRound()) {
        namesDecoder = input.DecoderRound();
        names.Clear();
    }
    bool known = false;
    CNameCache::CName& name = names.EntryFor(input.Bytes(span), known);
    if (!known) {
        FillName(name, input.Text(span));
    }
    return &name;
}

QString CDXFReaderImpl::Name(int code, const QString& absent)
{
    const CNameCache::CName* const name = KnownName(code);
    return name != nullptr ? name->text : tags.Value(code, absent);
}

// The reference is good until the next name is looked up.
const CNameCache::CName& CDXFReaderImpl::EntityLayer()
{
    const CNameCache::CName* const name = KnownName(8);
    if (name != nullptr) {
        return *name;
    }
    FillName(uncommonLayer, tags.Value(8));
    return uncommonLayer;
}

CPoint2D CDXFReaderImpl::PlanPoint(const CObjectCoordinates& coordinates, int xCode,
                                   int yCode) const
{
    const CPoint3D world = coordinates.ToWorldFlat(tags.Double(xCode), tags.Double(yCode));
    return {world.x, world.y};
}

// Group 420 is honoured only beside a group 62.
quint32 CDXFReaderImpl::Color(const CNameCache::CName& layer) const
{
    const int index = tags.Int(62, kAbsentColor);
    if (index == 0) {
        return currentBlock ? kByBlockColor : 0;
    }
    if (index != kAbsentColor) {
        if (tags.Has(420) && !tags.Value(420).isEmpty()) {
            return Swapped(static_cast<quint32>(tags.Int(420)));
        }
        return static_cast<quint32>(NumColACAD2RGB(index));
    }
    const bool known = layer.layer != nullptr && static_cast<qint32>(layer.layer->color) != -1
        && static_cast<qint32>(layer.layer->color) != kAbsentColor;
    return known ? layer.layer->color : 0;
}

QString CDXFReaderImpl::LineType(const CNameCache::CName& layer)
{
    if (!tags.Has(6)) {
        return layer.lineType;
    }
    const QString byLayer = layer.lineType; // the next name may take the place of this one
    const QString own = Name(6, QString());
    return IsByLayer(own) ? byLayer : own;
}

void CDXFReaderImpl::FillLayerAndColor(QString& layer, quint32& color)
{
    const CNameCache::CName& name = EntityLayer();
    layer = name.text;
    color = Color(name);
}

void CDXFReaderImpl::FillHead(CEntityDXF& entity)
{
    FillLayerAndColor(entity.layer, entity.color);
    entity.lineWeight = tags.Double(370);
}

void CDXFReaderImpl::FillStyledHead(CEntityDXF& entity)
{
    const CNameCache::CName& name = EntityLayer();
    entity.layer = name.text;
    entity.color = Color(name);
    entity.lineWeight = tags.Double(370);
    entity.lineStyle.name = LineType(name);
}

} // namespace VelorExchange::dxf
