// SPDX-License-Identifier: MIT
// Areas and images.
#include "tools/velorx/features/DxfFeatureLosses.h"
#include "tools/velorx/features/DxfFeatureReader.h"
#include "tools/velorx/features/DxfHatchChords.h"
#include "tools/velorx/features/RingOrder.h"
#include "tools/velorx/formats/DxfHatchOutlines.h"
#include "tools/velorx/formats/DxfKinds.h"
#include "tools/velorx/formats/DxfSurvey.h"

#include <algorithm>
#include <cmath>

namespace velorx {

using namespace VelorExchange::dxf;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;
constexpr double kSamePlace = 1e-6; // file units

constexpr double kHalfPixel = 0.5;

CPoint2D Along(const CPoint2D& from, const CPoint2D& v, double part)
{
    return {from.x + v.x * part, from.y + v.y * part};
}

bool IsAtEdge(double pixel, double size)
{
    constexpr double kNear = 1e-6;
    return std::fabs(pixel + kHalfPixel) < kNear || std::fabs(pixel + kHalfPixel - size) < kNear;
}

// Without a closing vertex; none for the frame of all of the picture.
std::vector<CPoint3D> ClipRing(std::vector<CPoint3D> clip, const SImageFeature& image)
{
    constexpr std::size_t kCorners = 4;
    DropRepeats(clip);
    const bool isAll =
        clip.size() == kCorners
        && std::all_of(clip.begin(), clip.end(), [&image](const CPoint3D& pixel) {
               return IsAtEdge(pixel.x, image.widthPixels) && IsAtEdge(pixel.y, image.heightPixels);
           });
    return isAll ? std::vector<CPoint3D>() : clip;
}

// What is shown, in the drawing.
void FillClip(SImageFeature& image, const std::vector<CPoint3D>& clip)
{
    for (const CPoint3D& pixel : ClipRing(clip, image)) {
        const double right = (pixel.x + kHalfPixel) / image.widthPixels;
        const double down = (pixel.y + kHalfPixel) / image.heightPixels;
        image.clip.push_back(
            Along(Along(image.origin, image.along, right), image.across, 1 - down));
    }
}

} // namespace

// A triangle repeats its third corner, an edge more than that.
bool CDxfFeatureReader::On3DFace(const C3DFaceDXF& record)
{
    const char* kind = EntityName(k3DFace);
    Meet(k3DFace);
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
    Meet(kSolid);
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

// The angle and the lines turn and grow with the insert.
void CDxfFeatureReader::FillPattern(SFeatureFill& fill, const CHatchDXF& hatch) const
{
    fill.pattern = hatch.style.name;
    fill.angle = place.placement.TurnedAngle(hatch.angle * kDegree);
    fill.isDouble = hatch.style.isDouble;
    const CDxfHatchPatterns::SPattern* pattern = survey.HatchPatterns().Find(hatch.style.name);
    if (pattern == nullptr) {
        return;
    }
    for (CHatchLineDXF line : CDxfHatchPatterns::LinesAt(*pattern, hatch.angle)) {
        const CPoint3D base = place.placement({line.baseX, line.baseY, 0.0});
        const CPoint2D offset = place.placement.Turned({line.offsetX, line.offsetY});
        const double angle = line.angle * kDegree;
        const CPoint2D along = place.placement.Turned({std::cos(angle), std::sin(angle)});
        for (double& dash : line.dashes) {
            dash *= std::hypot(along.x, along.y);
        }
        line.angle = place.placement.TurnedAngle(angle) / kDegree;
        line.baseX = base.x;
        line.baseY = base.y;
        line.offsetX = offset.x;
        line.offsetY = offset.y;
        fill.lines.push_back(std::move(line));
    }
}

bool CDxfFeatureReader::OnHatch(const CHatchDXF& record)
{
    Meet(kHatch);
    SAreaFeature area;
    FillHead(area, EntityName(kHatch), record.layer);
    area.is3D = record.elevation != 0.0;
    area.stroke.isVisible = false;
    area.fill.color = ColourOf(record.color, record.layer);
    const bool isSolid =
        record.style.name.compare(QLatin1String("SOLID"), Qt::CaseInsensitive) == 0;
    area.fill.kind = isSolid ? EFeatureFill::Solid : EFeatureFill::Pattern;
    if (!isSolid) {
        FillPattern(area.fill, record);
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

// Where an image does not tell its size, that of the picture's file stands for it, or a rectangle that it is
// clipped to. Pixels are counted
// from the middle of the upper left one, downwards.
bool CDxfFeatureReader::OnImage(const CImageDXF& record)
{
    Meet(kImage);
    SImageFeature image;
    FillHead(image, EntityName(kImage), record.layer);
    image.path = record.filePath;
    image.name = record.name;
    image.origin = record.origin;
    const bool hasSize = record.widthPixels > 0 && record.heightPixels > 0;
    const CPoint2D size = hasSize ? CPoint2D{record.widthPixels, record.heightPixels}
                                  : survey.ImageSize(record.filePath);
    image.widthPixels = size.x;
    image.heightPixels = size.y;
    image.rotation = record.rotation;
    std::vector<CPoint3D> clip = record.clip;
    if (clip.size() == 2) {
        if (size.x == 0.0) {
            image.widthPixels = std::max(clip[0].x, clip[1].x) + kHalfPixel;
            image.heightPixels = std::max(clip[0].y, clip[1].y) + kHalfPixel;
        }
        clip = {clip[0], {clip[1].x, clip[0].y, 0}, clip[1], {clip[0].x, clip[1].y, 0}};
    }
    if (!(image.widthPixels > 0) || !(image.heightPixels > 0)) {
        return Lost(image.kind, image.layer, losses::kNoSize);
    }
    const double width = record.scaleX * image.widthPixels;
    const double height = record.scaleY * image.heightPixels;
    const double cosine = std::cos(record.rotation);
    const double sine = std::sin(record.rotation);
    image.along = {width * cosine, width * sine};
    image.across = {-height * sine, height * cosine};
    FillClip(image, clip);
    return Give(image);
}

} // namespace velorx
