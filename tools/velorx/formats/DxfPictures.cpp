// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfPictures.h"

#include <cmath>
#include <iterator>

namespace velorx {

namespace {

constexpr double kDegree = 3.141592653589793 / 180.0;
constexpr int kBlockName = 2;
constexpr int kColour = 62;

struct SKind
{
    const char* name;
    int pointCode; ///< Of the place of the block.
    int directionCode; ///< Of the direction of its x axis, 0 for none.
};

constexpr SKind kKinds[] = {
    {"DIMENSION", 12, 0},
    {"ARC_DIMENSION", 12, 0},
    {"LARGE_RADIAL_DIMENSION", 12, 0},
    {"ACAD_TABLE", 10, 11},
};

VelorExchange::CPoint3D PointOf(const CDxfGroups& groups, int code)
{
    constexpr int kNext = 10; // from x to y to z
    return {groups.Number(code), groups.Number(code + kNext), groups.Number(code + 2 * kNext)};
}

} // namespace

void CDxfPictures::Take(const SDxfSurveyEntity& entity, const CDecode& decode)
{
    const QString within = entity.isInBlock ? entity.block : QString();
    for (const SKind& kind : kKinds) {
        if (entity.kind != kind.name || (entity.isInBlock && within.isEmpty())) {
            continue;
        }
        SDxfPicture picture;
        picture.kind = kind.name;
        picture.block = decode(entity.groups.Text(kBlockName));
        picture.layer = entity.layer;
        picture.colour = entity.groups.Integer(kColour, picture.colour);
        picture.point = PointOf(entity.groups, kind.pointCode);
        if (kind.directionCode != 0 && entity.groups.Has(kind.directionCode)) {
            const VelorExchange::CPoint3D along = PointOf(entity.groups, kind.directionCode);
            picture.rotation = std::atan2(along.y, along.x) / kDegree;
        }
        pictures[within.toCaseFolded()].push_back(picture);
    }
}

const std::vector<SDxfPicture>& CDxfPictures::In(const QString& block) const
{
    static const std::vector<SDxfPicture> none;
    const auto found = pictures.constFind(block.toCaseFolded());
    return found != pictures.constEnd() ? *found : none;
}

std::vector<const char*> CDxfPictures::Kinds()
{
    std::vector<const char*> names;
    for (const SKind& kind : kKinds) {
        names.push_back(kind.name);
    }
    return names;
}

} // namespace velorx
