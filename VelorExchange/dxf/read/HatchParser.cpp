// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"
#include "VelorExchange/dxf/read/HatchBoundary_p.h"

namespace VelorExchange::dxf {

// HATCH: its groups cannot be gathered all at once, since the paths repeat their codes. One map keeps
// what stands before and behind the paths. A hatch that the end of the file cuts off is not delivered.
CDXFTag CDXFReaderImpl::ReadHatch()
{
    tags.Clear();
    input.StartObject();
    if (!hatchBoundary) {
        hatchBoundary = std::make_unique<CHatchBoundary>(input);
    }
    CHatchDXF hatch;
    CDXFTag tag;
    while (!input.AtEnd()) {
        tag = tags.ReadUntil({0, 91});
        if (tag.code == 91) {
            tag = hatchBoundary->ReadPaths(tag, input.ToInt(tag.value), Coordinates(), hatch);
        }
        if (tag.code == 0) {
            FinishHatch(hatch);
            return tag;
        }
        tags.Store(tag);
    }
    return tag;
}

// Pattern lines, seed points and gradients are not read.
void CDXFReaderImpl::FinishHatch(CHatchDXF& hatch)
{
    if (IsPaperSpace()) {
        return;
    }
    FillLayerAndColor(hatch.layer, hatch.color);
    hatch.angle = tags.Double(52);
    hatch.elevation = tags.Double(30);
    hatch.style.name = Name(2, QStringLiteral("SOLID"));
    hatch.style.isDouble = tags.Int(77) == 1;
    Deliver(hatch, &IDXFReader::OnHatch);
}

} // namespace VelorExchange::dxf
