// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Colour.h"

#include "VelorExchange/dxf/write/ColourTable_p.h"

namespace VelorExchange::dxf {

namespace {

constexpr int kBlackIsWhite = 7; // white on a dark screen, black on paper
constexpr unsigned long kByLayer = 256;
constexpr unsigned long kByNothing = 257;
constexpr int kDarkestGrey = 250;

constexpr double Square(double value)
{
    return value * value;
}

double SquaredDistance(const CIndexColour& entry, unsigned long rgb)
{
    return Square(entry.red - static_cast<double>(rgb & 0xFFU))
        + Square(entry.green - static_cast<double>((rgb >> 8U) & 0xFFU))
        + Square(entry.blue - static_cast<double>((rgb >> 16U) & 0xFFU));
}

} // namespace

unsigned long NumColACAD2RGB(int index)
{
    if (index == kBlackIsWhite || index < 0 || index >= static_cast<int>(kColourCount)) {
        return 0;
    }
    const CIndexColour& entry = kColourTable[static_cast<std::size_t>(index)];
    return static_cast<unsigned long>(entry.red) | static_cast<unsigned long>(entry.green) << 8U
        | static_cast<unsigned long>(entry.blue) << 16U;
}

int RGB2NumColACAD(unsigned long rgb)
{
    if (rgb == 0) {
        return kDarkestGrey;
    }
    if (rgb == kByLayer || rgb == kByNothing) {
        return static_cast<int>(rgb);
    }
    std::size_t nearest = 1;
    double smallest = SquaredDistance(kColourTable[nearest], rgb);
    for (std::size_t index = nearest + 1; index < kColourCount; ++index) {
        const double distance = SquaredDistance(kColourTable[index], rgb);
        if (distance < smallest) {
            smallest = distance;
            nearest = index;
        }
    }
    return static_cast<int>(nearest);
}

} // namespace VelorExchange::dxf
