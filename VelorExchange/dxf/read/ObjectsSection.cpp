// SPDX-License-Identifier: MIT
// OBJECTS: multiline styles, and the file names of images. Nothing behind this section is read.
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

#include "VelorExchange/dxf/write/Colour.h"

namespace VelorExchange::dxf {

CDXFReaderImpl::EOutcome CDXFReaderImpl::ReadObjects()
{
    CDXFTag tag = input.ReadLoneTag();
    while (tag.code != CDXFTag::kNoCode) {
        ReportPosition();
        if (input.Is(tag, 0, "ENDSEC") || input.Is(tag, 0, "ENDBLK")) {
            break;
        }
        if (input.Is(tag, 0, "MLINESTYLE")) {
            tag = ReadMLineStyle();
        } else if (input.Is(tag, 0, "IMAGEDEF")) {
            tag = ReadImageDef();
        } else {
            tag = input.ReadLoneTag();
        }
    }
    ReportPosition();
    return EOutcome::Done;
}

// The first colour is that of the fill. Lists that don't fit leave the record empty, the name included.
CDXFTag CDXFReaderImpl::ReadMLineStyle()
{
    const CDXFTag next = tags.ReadObject();
    const QStringList colors = tags.Split(62);
    const QStringList lineTypes = tags.Split(6);
    CMLineStyleDXF style;
    if (lineTypes.size() == colors.size() - 1) {
        style.name = tags.Value(2);
        for (int i = 0; i < lineTypes.size(); ++i) {
            style.lineTypes.push_back(lineTypes[i]);
            style.colors.push_back(static_cast<quint32>(NumColACAD2RGB(colors[i + 1].toInt())));
        }
    }
    callback->OnMLineStyle(style);
    return next;
}

} // namespace VelorExchange::dxf
