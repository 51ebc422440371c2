// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

namespace VelorExchange::dxf {

/// One entry of the AutoCAD Color Index, channels 0 to 255.
struct CIndexColour
{
    int red = 0;
    int green = 0;
    int blue = 0;
};

constexpr std::size_t kColourCount = 256;
constexpr std::size_t kFirstHue = 10;
constexpr std::size_t kFirstGrey = 250;

/// Black, the six pure colours with white, two greys.
constexpr CIndexColour kFixedColours[kFirstHue] = {
    {0, 0, 0},   {255, 0, 0},   {255, 255, 0},   {0, 255, 0},     {0, 255, 255},
    {0, 0, 255}, {255, 0, 255}, {255, 255, 255}, {128, 128, 128}, {192, 192, 192}};
constexpr int kGreys[] = {51, 91, 132, 173, 214, 255};
constexpr int kIntensities[] = {255, 204, 153, 127, 76};

/// A channel of a hue, in quarters of the intensity. `hue` counts from 0 (red) in steps of 15 degrees,
/// and so do the rising flank from 0 to 4 and the falling one from 12 to 16 of the channel that peaks
/// at the 8th step.
constexpr int Quarters(int hue, int peak)
{
    const int step = (hue - peak + 8 + 24) % 24;
    if (step <= 0 || step >= 16) {
        return 0;
    }
    if (step < 4) {
        return step;
    }
    return step <= 12 ? 4 : 16 - step;
}

/// Saturated: so many quarters of the intensity. Pale: half way from there to the intensity. Fractions
/// are cut off.
constexpr int Channel(int intensity, int quarters, bool pale)
{
    return pale ? intensity * (quarters + 4) / 8 : intensity * quarters / 4;
}

constexpr CIndexColour HueColour(int hue, int place)
{
    const int intensity = kIntensities[place / 2];
    const bool pale = place % 2 != 0;
    return {Channel(intensity, Quarters(hue, 0), pale), Channel(intensity, Quarters(hue, 8), pale),
            Channel(intensity, Quarters(hue, 16), pale)};
}

constexpr std::array<CIndexColour, kColourCount> MakeColourTable()
{
    std::array<CIndexColour, kColourCount> table{};
    for (std::size_t i = 0; i < kFirstHue; ++i) {
        table[i] = kFixedColours[i];
    }
    for (std::size_t i = kFirstHue; i < kFirstGrey; ++i) {
        const auto place = static_cast<int>(i - kFirstHue);
        table[i] = HueColour(place / 10, place % 10);
    }
    for (std::size_t i = kFirstGrey; i < kColourCount; ++i) {
        const int grey = kGreys[i - kFirstGrey];
        table[i] = {grey, grey, grey};
    }
    return table;
}

constexpr std::array<CIndexColour, kColourCount> kColourTable = MakeColourTable();

} // namespace VelorExchange::dxf
