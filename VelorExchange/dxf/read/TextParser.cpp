// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/Angles_p.h"
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"

namespace VelorExchange::dxf {

// What TEXT, MTEXT and ATTRIB fill in the same way.
void CDXFReaderImpl::FillText(CTextDXF& text)
{
    text.text = tags.Value(1);
    FillLayerAndColor(text.layer, text.color);
    text.style.name = Name(7, QStringLiteral("STANDARD"));
    text.position = PlanPoint(Coordinates(), 10, 20);
    text.height = tags.Double(40);
}

// What TEXT and ATTRIB have beyond that; the angles are degrees in the file.
void CDXFReaderImpl::FillLineOfText(CTextDXF& text)
{
    FillText(text);
    text.rotation = ToRadians(tags.Double(50));
    text.style.obliqueAngle = ToRadians(tags.Double(51));
    text.alignment = tags.Int(72);
}

// TEXT: the relative width lands in the height of the style, which hosts rely on:
// TextParser.RelativeWidthLandsInHeightOfStyle holds it.
CDXFTag CDXFReaderImpl::ReadText()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    CTextDXF text;
    FillLineOfText(text);
    text.style.height = tags.Double(41);
    Deliver(text, &IDXFReader::OnText);
    return next;
}

} // namespace VelorExchange::dxf
