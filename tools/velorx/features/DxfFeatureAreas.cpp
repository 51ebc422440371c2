// SPDX-License-Identifier: MIT
// Areas and images.
#include "tools/velorx/features/DxfFeatureLosses.h"
#include "tools/velorx/features/DxfFeatureReader.h"
#include "tools/velorx/features/DxfHatchChords.h"
#include "tools/velorx/features/RingOrder.h"
#include "tools/velorx/formats/DxfHatchOutlines.h"
#include "tools/velorx/formats/DxfKinds.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;
constexpr double kSamePlace = 1e-6; // file units

CPoint2D Along(const CPoint2D& from, const CPoint2D& v, double part)
{
    return {from.x + v.x * part, from.y + v.y * part};
}

} // namespace

// A triangle repeats its third corner, an edge more than that.
bool CDxfFeatureReader::On3DFace(const C3DFaceDXF& record)
{
    const char* kind = EntityName(k3DFace);
    Meet(kind);
    CFeatureLine ring(record.corners.begin(), record.corners.end());
    DropRepeats(ring);
    if (ring.size() < 3) {
        return GivePath(kind, record, std::move(ring), true);
    }
    SAreaFeature area;
    FillHead(area, kind, record.layer);
    area.is3D = true;
    area.stroke = StrokeOf(record);
    area.rings.push_back(std::move(ring));
    return Give(area);
}

// Corners stand crosswise, and the first comes again at the end.
bool CDxfFeatureReader::OnSolid(const CSolidDXF& record)
{
    constexpr std::size_t kCorners = 4;
    Meet(EntityName(kSolid));
    CFeatureLine ring = record.points;
    if (ring.size() > 1) {
        ring.pop_back();
    }
    if (ring.size() == kCorners) {
        std::swap(ring[2], ring[3]);
    }
    for (CPoint3D& corner : ring) {
        corner.z = 0.0;
    }
    DropRepeats(ring);
    SAreaFeature area;
    FillHead(area, EntityName(kSolid), record.layer);
    area.stroke.isVisible = false;
    area.fill.kind = EFeatureFill::Solid;
    area.fill.color = ColourOf(record.color, record.layer);
    if (ring.size() > 2) {
        area.rings.push_back(std::move(ring));
    }
    return Give(area);
}

bool CDxfFeatureReader::OnHatch(const CHatchDXF& record)
{
    Meet(EntityName(kHatch));
    SAreaFeature area;
    FillHead(area, EntityName(kHatch), record.layer);
    area.is3D = record.elevation != 0.0;
    area.stroke.isVisible = false;
    area.fill.color = ColourOf(record.color, record.layer);
    const bool isSolid =
        record.style.name.compare(QLatin1String("SOLID"), Qt::CaseInsensitive) == 0;
    area.fill.kind = isSolid ? EFeatureFill::Solid : EFeatureFill::Pattern;
    if (!isSolid) {
        area.fill.pattern = record.style.name;
        area.fill.angle = record.angle * kDegree;
        area.fill.isDouble = record.style.isDouble;
    }
    const SHatchRings outlines = RingsOf(WithChords(record, chords), kSamePlace);
    int dropped = outlines.dropped;
    for (const CHatchRing& outline : outlines.rings) {
        CFeatureLine ring = RingWithChords(outline, record.elevation, chords);
        if (ring.size() > 2) {
            area.rings.push_back(std::move(ring));
        } else {
            ++dropped;
        }
    }
    PutOutermostFirst(area.rings);
    if (!Give(area)) {
        return false;
    }
    if (HasCurves(record)) {
        Changed(losses::kCurves, area.layer);
    }
    if (dropped > 0) {
        Changed(losses::kBoundaries, area.layer);
    }
    return true;
}

// A picture's pixels are counted from the middle of the upper left one, downwards.
bool CDxfFeatureReader::OnImage(const CImageDXF& record)
{
    constexpr double kHalf = 0.5;
    Meet(EntityName(kImage));
    SImageFeature image;
    FillHead(image, EntityName(kImage), record.layer);
    const double width = record.scaleX * record.widthPixels;
    const double height = record.scaleY * record.heightPixels;
    const double cosine = std::cos(record.rotation);
    const double sine = std::sin(record.rotation);
    image.path = record.filePath;
    image.name = record.name;
    image.origin = record.origin;
    image.along = {width * cosine, width * sine};
    image.across = {-height * sine, height * cosine};
    image.widthPixels = record.widthPixels;
    image.heightPixels = record.heightPixels;
    image.rotation = record.rotation;
    std::vector<CPoint3D> clip = record.clip;
    if (clip.size() == 2) {
        clip = {clip[0], {clip[1].x, clip[0].y, 0}, clip[1], {clip[0].x, clip[1].y, 0}};
    }
    for (const CPoint3D& pixel : clip) {
        const double right = (pixel.x + kHalf) / record.widthPixels;
        const double down = (pixel.y + kHalf) / record.heightPixels;
        image.clip.push_back(
            Along(Along(record.origin, image.along, right), image.across, 1 - down));
    }
    return Give(image);
}

} // namespace velorx
