// SPDX-License-Identifier: MIT
// Faces, areas and images.
#include "tools/velorx/convert/DxfReplay.h"
#include "tools/velorx/formats/DrawingText.h"
#include "tools/velorx/formats/DxfHatchOutlines.h"

#include <algorithm>
#include <utility>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint3D;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;

} // namespace

bool CDxfReplay::On3DFace(const C3DFaceDXF& record)
{
    C3DFaceDXF face = record;
    AdaptHead(face);
    return Count(k3DFace, writer.Add3DFace(face));
}

// Corners stand crosswise, and the first comes again at the end.
bool CDxfReplay::OnSolid(const CSolidDXF& record)
{
    CHatchDXF hatch;
    hatch.layer = record.layer;
    hatch.color = record.color;
    Adapt(hatch.layer, hatch.color);
    hatch.outline = record.points;
    if (hatch.outline.size() > 1) {
        hatch.outline.pop_back();
    }
    if (hatch.outline.size() == 4) {
        std::swap(hatch.outline[2], hatch.outline[3]);
    }
    for (CPoint3D& corner : hatch.outline) {
        corner.z = 0.0;
    }
    Note(EDxfLoss::Solids);
    return Count(kSolid, writer.AddHatch(hatch), EntityName(kHatch));
}

bool CDxfReplay::OnHatch(const CHatchDXF& record)
{
    CHatchDXF hatch;
    hatch.layer = record.layer;
    hatch.color = record.color;
    Adapt(hatch.layer, hatch.color);
    hatch.angle = record.angle * kDegree;
    hatch.style = record.style;
    SHatchRings boundaries = RingsOf(record, writer.GetTolerance());
    Note(EDxfLoss::HatchCurves, boundaries.curvedEdges > 0, boundaries.curvedEdges);
    Note(EDxfLoss::HatchBoundaries, boundaries.dropped > 0, boundaries.dropped);
    if (!boundaries.rings.empty()) {
        hatch.outline = boundaries.rings.front();
        boundaries.rings.erase(boundaries.rings.begin());
        hatch.markedBoundaries = std::move(boundaries.rings);
        TakePattern(record, hatch);
    }
    return Count(kHatch, writer.AddHatch(hatch));
}

// The writer counts the base of a pattern from the middle of the hatch.
void CDxfReplay::TakePattern(const CHatchDXF& record, CHatchDXF& hatch)
{
    if (record.style.name.compare(QLatin1String("SOLID"), Qt::CaseInsensitive) == 0) {
        return;
    }
    const CDxfHatchPatterns::SPattern* pattern = survey.HatchPatterns().Find(record.style.name);
    Note(pattern != nullptr ? EDxfLoss::HatchPatterns : EDxfLoss::HatchPatternsUntold);
    if (pattern != nullptr) {
        hatch.scale = pattern->scale;
        hatch.style.lines = CDxfHatchPatterns::LinesAt(*pattern, record.angle);
    } else {
        hatch.style.lines = PlainLines(record, hatch.outline);
    }
}

// Each image gets a definition of its own, and so needs a name of its own. The writer tells the size of
// the picture in its definition alone: a clip around all of it tells it to programs that look no further.
bool CDxfReplay::OnImage(const CImageDXF& record)
{
    CImageDXF image = record;
    AdaptLayer(image.layer);
    image.name = writer.MakeImageName(record.name);
    if (image.clip.size() < 2 && image.widthPixels > 0 && image.heightPixels > 0) {
        constexpr double kHalfPixel = 0.5;
        image.clip = {{-kHalfPixel, -kHalfPixel, 0.0},
                      {image.widthPixels - kHalfPixel, image.heightPixels - kHalfPixel, 0.0}};
        Note(EDxfLoss::ImageOutlines);
    }
    bool isWhole = true;
    image.filePath = TextForDrawing(record.filePath, isWhole);
    return Count(kImage, writer.AddImage(image));
}

} // namespace velorx
