// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfFeatures.h"

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/SxfOutput.h"
#include "tools/velorx/features/SxfPoints.h"
#include "tools/velorx/formats/SxfCodes.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace velorx {

using namespace VelorExchange::pnr;
using VelorExchange::CPoint3D;

namespace {

constexpr quint32 kColour = 0xFFFFFF;
constexpr double kMicrometres = 1000.0; // in a millimetre
constexpr double kPoints = 72.0 / 25.4; // in a millimetre
constexpr double kRingShare = 0.125; // of the height of the common mark

CFeatureLine Ring(const CAbstractVertexHolder& contour)
{
    CFeatureLine ring = SxfPoints(contour);
    if (ring.size() > 1 && ring.front().x == ring.back().x && ring.front().y == ring.back().y) {
        ring.pop_back();
    }
    return ring;
}

bool IsClosed(const CFeatureLine& ring, const CFeatureLine& closed)
{
    const auto isSame = [](const CPoint3D& a, const CPoint3D& b) {
        return a.x == b.x && a.y == b.y && a.z == b.z;
    };
    return closed.size() == ring.size() + 1 && isSame(closed.back(), ring.front())
        && std::equal(ring.begin(), ring.end(), closed.begin(), isSame);
}

bool HasAttributes(const CBaseObject& object)
{
    return std::any_of(object.semantics.begin(), object.semantics.end(),
                       [](const PnrSemantic& s) { return s.code != kSxfLayerCode; });
}

void SetStroke(SFeatureStroke& stroke, const PnrLineImage& image)
{
    stroke.isVisible = true;
    stroke.color = static_cast<quint32>(image.color) & kColour;
    stroke.width = std::max(image.thickness, 0) / kMicrometres;
}

// In points; 0 for the mark that stands where nobody told one.
double MarkSize(const PnrPointImage& image)
{
    const bool isRing = image.bits == kPnrRingMask;
    if (isRing && image.size == PnrPointImage().size) {
        return 0.0;
    }
    return image.size / kMicrometres * (isRing ? kRingShare : 1.0) * kPoints;
}

QString AttributeName(const PnrSemantic& semantic)
{
    return semantic.name.isEmpty() ? QStringLiteral("S_%1").arg(semantic.code) : semantic.name;
}

} // namespace

void CSxfFeatures::FillHead(SFeature& feature, const CBaseObject& object)
{
    feature.layer = object.layer.isEmpty() ? QLatin1String(kSxfNoLayer) : object.layer;
    feature.code = object.code;
    feature.is3D = !object.holders.empty() && !object.holders.front()->Is2D();
    feature.attributes = Attributes(object);
}

// The layer stands in the feature, and numbers of objects mean nothing outside their map. One attribute of
// a code that comes again is told by a number.
CFeatureAttributes CSxfFeatures::Attributes(const CBaseObject& object)
{
    auto attributes = std::make_shared<std::vector<SFeatureAttribute>>();
    QSet<QString> names;
    for (const PnrSemantic& semantic : object.semantics) {
        if (semantic.code == kSxfLayerCode) {
            continue;
        }
        if (semantic.code == kSxfLinkToTextCode || semantic.code == kSxfLinkToObjectCode) {
            tally.Lose(QStringLiteral("links between objects and texts"), object.layer);
            continue;
        }
        const QString name = AttributeName(semantic);
        QString unique = name;
        for (int i = 2; names.contains(unique); ++i) {
            unique = name + QLatin1Char('_') + QString::number(i);
        }
        names.insert(unique);
        attributes->push_back({unique, semantic.value});
    }
    return attributes->empty() ? nullptr : attributes;
}

// Our writers put the outline of an area behind it, as a line with the same contours.
bool CSxfFeatures::IsOutline(const CLineObject& line) const
{
    if (!pending || !line.image || line.code != 0 || line.layer != pending->layer
        || HasAttributes(line) || line.holders.size() != pending->rings.size())
    {
        return false;
    }
    return std::equal(line.holders.begin(), line.holders.end(), pending->rings.begin(),
                      [](const auto& contour, const CFeatureLine& ring) {
                          return contour->Count() == ring.size() + 1
                              && IsClosed(ring, SxfPoints(*contour));
                      });
}

void CSxfFeatures::Finish()
{
    HandOnPending();
}

const char* CSxfFeatures::HandOnPending()
{
    if (!pending) {
        return nullptr;
    }
    const char* as = sink.Take(*pending);
    if (as != nullptr) {
        tally.Wrote(kSxfArea, as);
    }
    pending.reset();
    return as;
}

void CSxfFeatures::Take(CLineObject& line)
{
    if (IsOutline(line)) {
        tally.Read(kSxfOutline);
        SetStroke(pending->stroke, *line.image);
        if (const char* as = HandOnPending()) {
            tally.Wrote(kSxfOutline, as);
        }
        return;
    }
    HandOnPending();
    SLineFeature feature;
    FillHead(feature, line);
    if (line.image) {
        SetStroke(feature.stroke, *line.image);
    }
    feature.kind = kSxfLine;
    for (const auto& contour : line.holders) {
        tally.Read(feature.kind);
        feature.points = SxfPoints(*contour);
        if (feature.points.size() < 2) {
            tally.Lose(QStringLiteral("lines of a single vertex"), feature.layer);
        } else {
            HandOn(feature, sink, tally);
        }
        feature.kind = kSxfLinePart;
    }
    if (line.holders.empty()) {
        tally.Read(feature.kind);
        tally.Lose(QStringLiteral("lines without a vertex"), feature.layer);
    }
}

// An area with a drawing of its own waits for the next object, which may be its outline.
void CSxfFeatures::Take(CSquareObject& area)
{
    HandOnPending();
    SAreaFeature feature;
    feature.kind = kSxfArea;
    FillHead(feature, area);
    tally.Read(kSxfArea);
    if (!FillRings(feature, area)) {
        return;
    }
    if (area.image) {
        const auto color = static_cast<quint32>(area.image->color);
        feature.fill.kind = color == kSxfNoColour ? EFeatureFill::None : EFeatureFill::Solid;
        feature.fill.color = color & kColour;
        feature.stroke.color = feature.fill.color;
        feature.stroke.isVisible = false;
    }
    pending = std::move(feature);
    if (!area.image || area.code != 0) {
        HandOnPending();
    }
}

bool CSxfFeatures::FillRings(SAreaFeature& feature, const CSquareObject& area)
{
    for (const auto& contour : area.holders) {
        CFeatureLine ring = Ring(*contour);
        if (ring.size() >= 3) {
            feature.rings.push_back(std::move(ring));
        } else if (feature.rings.empty()) {
            tally.Lose(QStringLiteral("areas of less than three vertices"), feature.layer);
            return false;
        } else {
            tally.Lose(QStringLiteral("holes of less than three vertices"), feature.layer);
        }
    }
    if (feature.rings.empty()) {
        tally.Lose(QStringLiteral("areas without a vertex"), feature.layer);
        return false;
    }
    return true;
}

void CSxfFeatures::Take(CPointObject& point)
{
    HandOnPending();
    SPointFeature feature;
    FillHead(feature, point);
    if (point.image) {
        feature.symbol.color = static_cast<quint32>(point.image->color) & kColour;
        feature.symbol.size = MarkSize(*point.image);
    }
    feature.kind = kSxfPoint;
    for (const auto& contour : point.holders) {
        tally.Read(feature.kind);
        const CFeatureLine points = SxfPoints(*contour);
        if (points.empty()) {
            tally.Lose(QStringLiteral("points without a vertex"), feature.layer);
        } else {
            feature.position = points.front();
            feature.symbol.angle = SxfDirection(points);
            if (points.size() > 1) {
                tally.Lose(QStringLiteral("vectors became points with a direction"), feature.layer);
            }
            HandOn(feature, sink, tally);
        }
        feature.kind = kSxfPointPart;
    }
    if (point.holders.empty()) {
        tally.Read(feature.kind);
        tally.Lose(QStringLiteral("points without a vertex"), feature.layer);
    }
}

void CSxfFeatures::TakeFrame()
{
    tally.Read(kSxfFrame);
    tally.Lose(QStringLiteral("frames around everything are left out"));
}

} // namespace velorx
