// SPDX-License-Identifier: MIT
#include "SxfSurveyMap.h"

#include <cmath>

using namespace VelorExchange::pnr;
using VelorExchange::CPoint2D;

namespace {

constexpr double kBytesPerRound = 3856; // of the binary file, for the objects below

PnrSemantic Attribute(qint32 code, qint32 type, const QVariant& value, int scale = 0)
{
    PnrSemantic semantic;
    semantic.code = code;
    semantic.dataType = type;
    semantic.scale = static_cast<quint8>(scale);
    semantic.value = value;
    return semantic;
}

std::unique_ptr<CVertexHolder2D> Contour(std::size_t count)
{
    auto holder = std::make_unique<CVertexHolder2D>();
    holder->vertices.resize(count);
    return holder;
}

void Bend(CBaseObject& object, double x, double y, double step)
{
    for (const auto& holder : object.holders) {
        double at = 0;
        for (CPoint2D& p : static_cast<CVertexHolder2D&>(*holder).vertices) {
            p = {x + at, y + step * std::sin(at)};
            at += step;
        }
    }
}

} // namespace

CSxfSurveyMap::CSxfSurveyMap()
{
    contour.code = 21200000;
    contour.holders.push_back(Contour(120));
    contour.semantics = {Attribute(4, 8, 152.5)};
    road.code = 61310000;
    road.holders.push_back(Contour(24));
    road.semantics = {Attribute(9, 126, QStringLiteral("Волгоград"), 9), Attribute(17, 4, 7)};
    house.code = 44200000;
    house.holders.push_back(Contour(9));
    house.holders.push_back(Contour(5));
    house.semantics = {Attribute(15, 2, 5)};
    tree.code = 71311000;
    tree.holders.push_back(Contour(1));
    name.code = 0;
    name.hasOwnImage = true;
    name.text = QStringLiteral("152,5");
    name.holders.push_back(Contour(2));
}

void CSxfSurveyMap::MoveTo(double x, double y)
{
    Bend(contour, x, y, 1.37);
    Bend(road, x + 5, y - 5, 7.01);
    Bend(house, x + 20, y + 20, 3.3);
    for (const auto& holder : house.holders) {
        auto& ring = static_cast<CVertexHolder2D&>(*holder).vertices;
        ring.back() = ring.front();
    }
    Bend(name, x + 1, y + 1, 12.5);
}

long CSxfSurveyMap::Write(IPnrWriter& writer, double megabytes)
{
    constexpr int kTrees = 6;
    const auto rounds = static_cast<long>(megabytes * 1048576 / kBytesPerRound);
    long objects = 0;
    for (long i = 0; i < rounds; ++i) {
        const double x = 6174392.25 + 150.0 * static_cast<double>(i % 1000);
        const double y = 10311242.5 + 150.0 * static_cast<double>(i / 1000);
        MoveTo(x, y);
        writer.WriteLine(&contour);
        writer.WriteLine(&road);
        writer.WriteSquare(&house);
        for (int j = 0; j < kTrees; ++j) {
            Bend(tree, x + 10 * j, y, 0);
            writer.WritePoint(&tree);
        }
        writer.WriteText(&name);
        objects += 4 + kTrees;
    }
    return objects;
}
