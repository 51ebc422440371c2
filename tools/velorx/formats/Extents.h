// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Point.h"

#include <QJsonValue>
#include <QString>

#include <utility>

namespace velorx {

class CTextTable;

/// The least rectangle around points in the plan, in file units. Points that are not finite stay out.
class CExtents
{
public:
    void Add(double x, double y);
    void Add(const VelorExchange::CPoint2D& point) { Add(point.x, point.y); }

    /// Lower left and upper right corner; both the origin without a point.
    std::pair<VelorExchange::CPoint2D, VelorExchange::CPoint2D> Corners() const
    {
        return {least, greatest};
    }

    /// Two rows, "Extents from" and "Extents to"; none without a point.
    void AddTo(CTextTable& table) const;

    /// `min` and `max`, each of x and y; null without a point.
    QJsonValue ToJson() const;

private:
    bool isEmpty = true;
    VelorExchange::CPoint2D least;
    VelorExchange::CPoint2D greatest;
};

} // namespace velorx
