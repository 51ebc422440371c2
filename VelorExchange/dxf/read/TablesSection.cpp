// SPDX-License-Identifier: MIT
// TABLES: layers, text styles and line types. Their records are known by group 0 alone, so the heads
// of the tables need no treatment.
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

namespace {

constexpr int kFrozenFlags = 3;
constexpr int kLockedFlag = 4;

} // namespace

CDXFReaderImpl::EOutcome CDXFReaderImpl::ReadTables()
{
    CDXFTag tag = input.ReadLoneTag();
    while (tag.code != CDXFTag::kNoCode) {
        ReportPosition();
        if (input.Is(tag, 0, "LAYER")) {
            tag = ReadLayer();
        } else if (input.Is(tag, 0, "STYLE")) {
            tag = ReadTextStyle();
        } else if (input.Is(tag, 0, "LTYPE")) {
            tag = ReadLineStyle();
        } else if (input.Is(tag, 0, "ENDSEC")) {
            return EOutcome::GoOn;
        } else {
            tag = input.ReadLoneTag();
        }
    }
    return EOutcome::GoOn;
}

CDXFTag CDXFReaderImpl::ReadLayer()
{
    const CDXFTag next = tags.ReadObject();
    CLayerDXF layer;
    layer.name = tags.Value(2);
    if (layer.name.isEmpty()) {
        return next;
    }
    const int flags = tags.Int(70);
    layer.lineType = tags.Value(6, QStringLiteral("CONTINUOUS"));
    layer.color = Color(EntityLayer());
    layer.lineWeight = tags.Int(370);
    layer.visible = tags.Int(62) >= 0 && (flags & kFrozenFlags) == 0;
    layer.unlocked = (flags & kLockedFlag) == 0;
    names.Clear();
    callback->OnLayer(layers.Add(layer));
    return next;
}

CDXFTag CDXFReaderImpl::ReadTextStyle()
{
    const CDXFTag next = tags.ReadObject();
    CTextStyleDXF style;
    style.name = tags.Value(2);
    if (!style.name.isEmpty()) {
        style.fontFile = tags.Value(3, QStringLiteral("Arial"));
        callback->OnTextStyle(style);
    }
    return next;
}

CDXFTag CDXFReaderImpl::ReadLineStyle()
{
    const CDXFTag next = tags.ReadObject();
    CLineStyleDXF style;
    style.name = tags.Value(2, QStringLiteral("CONTINUOUS"));
    callback->OnLineStyle(style);
    return next;
}

} // namespace VelorExchange::dxf
