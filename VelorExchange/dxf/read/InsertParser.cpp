// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

// INSERT and the ATTRIB records that follow; the SEQEND behind them is left to the entity loop.
CDXFTag CDXFReaderImpl::ReadInsert()
{
    CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    CInsertDXF insert;
    insert.name = Name(2, QString());
    FillLayerAndColor(insert.layer, insert.color);
    insert.lineStyle.name = LineType(EntityLayer());
    insert.scaleX = tags.Double(41, 1.0);
    insert.scaleY = tags.Double(42, 1.0);
    insert.scaleZ = tags.Double(43, 1.0);
    insert.rotation = tags.Double(50);
    insert.point = Coordinates().ToWorld(tags.Point3D(10, 20, 30));
    while (input.Bytes(next.value) == "ATTRIB") { // whatever its code
        next = tags.ReadObject();
        insert.attributes.push_back(MakeAttribute());
    }
    Deliver(insert, &IDXFReader::OnInsert);
    return next;
}

// An attribute has no test for paper space, and its own extrusion.
CAttribDXF CDXFReaderImpl::MakeAttribute()
{
    CAttribDXF attribute;
    FillLineOfText(attribute);
    attribute.tag = tags.Value(2);
    attribute.style.height = attribute.height;
    attribute.style.widthFactor = tags.Double(41, 1.0);
    return attribute;
}

// ATTDEF: kept in blocks alone, and not looked at for paper space.
CDXFTag CDXFReaderImpl::ReadAttDef()
{
    const CDXFTag next = tags.ReadObject();
    if (currentBlock) {
        CAttDefDXF definition;
        definition.tag = tags.Value(2);
        definition.value = tags.Value(1);
        currentBlock->entities.emplace_back(std::move(definition));
    }
    return next;
}

} // namespace VelorExchange::dxf
