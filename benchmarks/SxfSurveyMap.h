// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/Pnr.h"

#include <memory>
#include <vector>

/// A map as surveys make them: contour lines, roads, houses, trees, spot heights, names.
class CSxfSurveyMap
{
public:
    CSxfSurveyMap();

    /// Writes objects until about `megabytes` of binary file are reached. Returns their number.
    long Write(VelorExchange::pnr::IPnrWriter& writer, double megabytes);

private:
    void MoveTo(double x, double y);

    VelorExchange::pnr::CLineObject contour;
    VelorExchange::pnr::CLineObject road;
    VelorExchange::pnr::CSquareObject house;
    VelorExchange::pnr::CPointObject tree;
    VelorExchange::pnr::CTextObject name;
};
