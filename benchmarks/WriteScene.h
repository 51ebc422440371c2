// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>

namespace bench {

/// A position of the scene.
struct CSpot
{
    double x;
    double y;
};

/// What all writers draw: contours, lines, spot heights and texts on a few layers, the same each time.
/// The positions come out of a pool, so that making them costs next to nothing.
class CWriteScene
{
public:
    static constexpr std::array<const char*, 8> kLayers = {
        "contours", "roads", "heights", "texts", "borders", "water", "networks", "buildings"};
    static constexpr std::size_t kContour = 40; ///< Vertices of a contour.

    CWriteScene()
    {
        std::mt19937_64 random(7);
        for (CSpot& spot : pool) {
            spot.x = 500000 + static_cast<double>(random() % 10000000) / 1000 + 0.0001234;
            spot.y = 6200000 + static_cast<double>(random() % 10000000) / 1000 + 0.0004321;
        }
    }

    /// Calls the operations of `sink`: `Contour(layer, color, spots)`, `Line(layer, color, from, to)`,
    /// `Height(layer, color, spot, z)`, `Label(layer, color, spot, number)`.
    template <class Sink>
    void Draw(long objects, Sink& sink)
    {
        for (long i = 0; i < objects; ++i) {
            const int layer = static_cast<int>(i % static_cast<long>(kLayers.size()));
            const std::uint32_t color = kColors[static_cast<std::size_t>(i) % kColors.size()];
            switch (i % 4) {
            case 0:
                sink.Contour(layer, color, Spots(i));
                break;
            case 1:
                sink.Line(layer, color, Spot(i), Spot(i + 1));
                break;
            case 2:
                sink.Height(layer, color, Spot(i), static_cast<double>(i % 3000) / 10);
                break;
            default:
                sink.Label(layer, color, Spot(i), i);
            }
        }
    }

private:
    static constexpr std::array<std::uint32_t, 5> kColors = {0x0000FF, 0x00FF00, 0x808080, 0x123456,
                                                             0xC0C0C0};
    static constexpr std::size_t kPool = 4096;

    const CSpot& Spot(long i) const { return pool[static_cast<std::size_t>(i * 7) % kPool]; }
    const CSpot* Spots(long i) const
    {
        return &pool[static_cast<std::size_t>(i * 13) % (kPool - kContour)];
    }

    std::array<CSpot, kPool> pool{};
};

} // namespace bench
