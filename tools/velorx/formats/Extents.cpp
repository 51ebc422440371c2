// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/Extents.h"

#include "tools/velorx/TextTable.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace velorx {

namespace {

QString PointText(const VelorExchange::CPoint2D& point)
{
    return PlainNumber(point.x) + QStringLiteral(", ") + PlainNumber(point.y);
}

} // namespace

void CExtents::Add(double x, double y)
{
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return;
    }
    if (isEmpty) {
        least = {x, y};
        greatest = least;
        isEmpty = false;
        return;
    }
    least = {std::min(least.x, x), std::min(least.y, y)};
    greatest = {std::max(greatest.x, x), std::max(greatest.y, y)};
}

void CExtents::AddTo(CTextTable& table) const
{
    if (!isEmpty) {
        table.Add({QStringLiteral("Extents from"), PointText(least)});
        table.Add({QStringLiteral("Extents to"), PointText(greatest)});
    }
}

QJsonValue CExtents::ToJson() const
{
    if (isEmpty) {
        return QJsonValue(QJsonValue::Null);
    }
    return QJsonObject{{QStringLiteral("min"), QJsonArray{least.x, least.y}},
                       {QStringLiteral("max"), QJsonArray{greatest.x, greatest.y}}};
}

} // namespace velorx
