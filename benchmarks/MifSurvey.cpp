// SPDX-License-Identifier: MIT
#include "MifSurvey.h"

#include <cmath>

namespace bench {

namespace {

const char* const kUses[] = {"arable land", "housing", "road", "forest", "water", "garden"};
constexpr EMifKind kMix[] = {EMifKind::Parcel, EMifKind::Contour, EMifKind::Height,
                             EMifKind::Parcel, EMifKind::Height,  EMifKind::Note};
constexpr double kSide = 100000;
constexpr double kFullTurn = 6.283185307179586;

} // namespace

double CMifSurvey::Random(double limit)
{
    state ^= state << 13U;
    state ^= state >> 7U;
    state ^= state << 17U;
    return static_cast<double>(state >> 11U) / 9007199254740992.0 * limit;
}

void CMifSurvey::Ring(int count, double x, double y, double radius)
{
    for (int i = 0; i < count; ++i) {
        const double angle = kFullTurn * i / count;
        const double r = radius * (0.7 + Random(0.3));
        object.coordinates.push_back(x + r * std::cos(angle));
        object.coordinates.push_back(y + r * std::sin(angle));
    }
}

const CMifObject& CMifSurvey::Next()
{
    const double x = 400000 + Random(kSide);
    const double y = 6100000 + Random(kSide);
    object.kind = kMix[number % 6];
    object.coordinates.clear();
    object.number = ++number;
    object.use = kUses[number % 6];
    object.name = "plot 50:21:" + std::to_string(100000 + number % 7919);
    object.height = static_cast<float>(Random(300));
    object.area = Random(20000);
    switch (object.kind) {
    case EMifKind::Parcel:
        Ring(6 + number % 15, x, y, 60);
        object.coordinates.insert(object.coordinates.end(),
                                  {object.coordinates[0], object.coordinates[1]});
        break;
    case EMifKind::Contour:
        Ring(40 + number % 60, x, y, 400);
        break;
    case EMifKind::Height:
        object.coordinates = {x, y};
        break;
    case EMifKind::Note:
        object.coordinates = {x, y, x + 25, y + 4};
        break;
    }
    return object;
}

} // namespace bench
