// SPDX-License-Identifier: MIT
// The loop over entities, which ENTITIES and blocks share, and what all entities have in common.
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

#include "VelorExchange/dxf/write/Colour.h"

#include <QLatin1String>

namespace VelorExchange::dxf {

namespace {

constexpr int kAbsentColor = -2;
constexpr char kByLayer[] = "BYLAYER";

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

CDXFReaderImpl::CParser CDXFReaderImpl::ParserOf(const CDXFTag& tag) const
{
    // Length and first letter rule out nearly all names; a name with letters beyond ASCII is compared
    // with each.
    const std::string_view bytes = input.Bytes(tag.value);
    const bool isAscii = detail::IsAscii(bytes);
    constexpr unsigned char kLowerCase = 0x20;
    for (const CEntityName& entity : kEntityNames) {
        const bool possible = !isAscii
            || (bytes.size() == entity.name.size()
                && ((bytes[0] ^ entity.name[0]) & ~kLowerCase) == 0);
        if (possible && input.Is(tag, 0, entity.name)) {
            return entity.parser;
        }
    }
    return nullptr;
}

// A text that comes once and is short is decoded, and looked up among the layers, once for all objects
// that have it. Null for any other.
const CNameCache::CName* CDXFReaderImpl::KnownName(int code)
{
    CTextSpan span;
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
    CNameCache::CName& name = names.PlaceOf(input.Bytes(span), known);
    if (!known) {
        name.text = input.Text(span);
        name.layer = layers.Find(name.text);
    }
    return &name;
}

QString CDXFReaderImpl::Name(int code, const QString& absent)
{
    const CNameCache::CName* const name = KnownName(code);
    return name != nullptr ? name->text : tags.Value(code, absent);
}

const CLayerDXF* CDXFReaderImpl::LayerOfEntity()
{
    const CNameCache::CName* const name = KnownName(8);
    return name != nullptr ? name->layer : layers.Find(tags.Value(8));
}

CPoint2D CDXFReaderImpl::PlanPoint(const CObjectCoordinates& coordinates, int xCode,
                                   int yCode) const
{
    const CPoint3D world = coordinates.ToWorldFlat(tags.Double(xCode), tags.Double(yCode));
    return {world.x, world.y};
}

// Group 420 is honoured only beside a group 62.
quint32 CDXFReaderImpl::Color()
{
    const int index = tags.Int(62, kAbsentColor);
    if (index == 0) {
        return currentBlock ? kByBlockColor : 0;
    }
    if (index != kAbsentColor) {
        if (!tags.Value(420).isEmpty()) {
            return Swapped(static_cast<quint32>(tags.Int(420)));
        }
        return static_cast<quint32>(NumColACAD2RGB(index));
    }
    const CLayerDXF* const layer = LayerOfEntity();
    const bool known = layer != nullptr && static_cast<qint32>(layer->color) != -1
        && static_cast<qint32>(layer->color) != kAbsentColor;
    return known ? layer->color : 0;
}

QString CDXFReaderImpl::LineType()
{
    if (tags.Has(6)) {
        const QString own = Name(6, QString());
        if (!IsByLayer(own)) {
            return own;
        }
    }
    const CLayerDXF* const layer = LayerOfEntity();
    if (layer != nullptr && !IsByLayer(layer->lineType)) {
        return layer->lineType;
    }
    return QStringLiteral("CONTINUOUS");
}

void CDXFReaderImpl::FillHead(CEntityDXF& entity)
{
    entity.layer = Layer();
    entity.color = Color();
    entity.lineWeight = tags.Double(370);
}

} // namespace VelorExchange::dxf
