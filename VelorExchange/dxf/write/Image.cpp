// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/CodePage1251_p.h"
#include "VelorExchange/dxf/write/DXFWriterImpl_p.h"
#include "VelorExchange/dxf/write/Finite_p.h"
#include "VelorExchange/dxf/write/Texts_p.h"
#include "VelorExchange/foundation/Coincidence_p.h"

#include <cmath>

namespace VelorExchange::dxf {

namespace {

constexpr int kImageDictionary = 0x8F;
constexpr int kShown = 3;
constexpr int kClipped = 4;
constexpr int kTransparent = 8;
constexpr int kRectangle = 1;
constexpr int kPolygon = 2;

bool CanBeTransparent(const QString& path)
{
    return path.contains(QLatin1String(".png"), Qt::CaseInsensitive)
        || path.contains(QLatin1String(".gif"), Qt::CaseInsensitive);
}

bool HasClip(const CImageDXF& record)
{
    return record.clip.size() >= 2;
}

bool IsFinite(const CImageDXF& record)
{
    CFiniteCheck check;
    check << record.widthPixels << record.heightPixels;
    if (HasClip(record)) {
        for (const CPoint3D& point : record.clip) {
            check << point.x << point.y;
        }
    }
    return check.IsPassed();
}

} // namespace

// The definition comes between the two halves of the entity. The second half always goes to the
// entities, also within a block: held by Image.SecondHalfLandsOutsideTheBlock.
bool CDXFWriterImpl::AddImage(const CImageDXF& record)
{
    if (record.name.isEmpty()) {
        return false;
    }
    TakeScale();
    const CPoint2D origin = Placed(record.origin);
    const CPoint2D size{Scaled(record.scaleX), Scaled(record.scaleY)};
    const double cosine = std::cos(record.rotation);
    const double sine = std::sin(record.rotation);
    const CPoint2D along{size.x * cosine, size.x * sine};
    const CPoint2D across{-size.y * sine, size.y * cosine};
    if (!AreFinite(origin, size, along, across) || !IsFinite(record)) {
        return false;
    }
    const CName& layer = Layer(record.layer);
    const int image = nextHandle;
    WriteStart("IMAGE", layer);
    output.WriteTag(100, "AcDbRasterImage");
    WritePoint(10, origin);
    WritePoint(11, along);
    WritePoint(12, across);
    int reactor = 0;
    const int definition = WriteImageDefinition(record, size, image, reactor);
    output.SetTarget(entities);
    output.WriteHandle(340, definition);
    output.WriteHandle(360, reactor);
    output.WriteTag(70,
                    kShown + (HasClip(record) ? kClipped : 0)
                        + (CanBeTransparent(record.filePath) ? kTransparent : 0));
    if (HasClip(record)) {
        WriteClip(record);
    }
    Count(texts::Images());
    return true;
}

int CDXFWriterImpl::WriteImageDefinition(const CImageDXF& record, const CPoint2D& size, int image,
                                         int& reactor)
{
    output.SetTarget(objects);
    output.WriteTag(0, "IMAGEDEF_REACTOR");
    reactor = nextHandle;
    WriteNewHandle();
    output.WriteTag(100, "AcDbRasterImageDefReactor");
    output.WriteHandle(330, image);
    output.WriteTag(0, "IMAGEDEF");
    const int definition = nextHandle;
    WriteNewHandle();
    imageDefs[WithinCodePage1251(record.name)] = definition;
    output.WriteTag(102, "{ACAD_REACTORS");
    output.WriteHandle(330, kImageDictionary);
    output.WriteHandle(330, reactor);
    output.WriteTag(102, "}");
    output.WriteTag(100, "AcDbRasterImageDef");
    output.WriteTag(1, record.filePath);
    WritePoint(10, CPoint2D{record.widthPixels, record.heightPixels});
    WritePoint(11, size);
    output.WriteTag(280, 1);
    return definition;
}

void CDXFWriterImpl::WriteClip(const CImageDXF& record)
{
    const std::vector<CPoint3D>& clip = record.clip;
    const bool isPolygon = clip.size() > 2;
    const bool isOpen = isPolygon && !CoincideInPlan(clip.front(), clip.back());
    output.WriteTag(280, 1);
    output.WriteTag(71, isPolygon ? kPolygon : kRectangle);
    output.WriteTag(91, static_cast<int>(clip.size()) + static_cast<int>(isOpen));
    for (const CPoint3D& point : clip) {
        WritePoint(14, CPoint2D{point.x, point.y});
    }
    if (isOpen) {
        WritePoint(14, CPoint2D{clip.front().x, clip.front().y});
    }
}

} // namespace VelorExchange::dxf
