// SPDX-License-Identifier: MIT
// Writes the scene through GDAL's DXF driver: DxfWriteGdal OUT OBJECTS.
#include "WriteScene.h"

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

class CSink
{
public:
    explicit CSink(OGRLayer& target) : output(target) { }

    void Contour(int layer, std::uint32_t color, const bench::CSpot* spots)
    {
        OGRLineString line;
        for (std::size_t i = 0; i < bench::CWriteScene::kContour; ++i) {
            line.addPoint(spots[i].x, spots[i].y);
        }
        Write(layer, Pen(color), line);
    }
    void Line(int layer, std::uint32_t color, const bench::CSpot& from, const bench::CSpot& to)
    {
        OGRLineString line;
        line.addPoint(from.x, from.y);
        line.addPoint(to.x, to.y);
        Write(layer, Pen(color), line);
    }
    void Height(int layer, std::uint32_t color, const bench::CSpot& spot, double z)
    {
        const OGRPoint point(spot.x, spot.y, z);
        Write(layer, Pen(color), point);
    }
    void Label(int layer, std::uint32_t, const bench::CSpot& spot, long number)
    {
        const OGRPoint point(spot.x, spot.y);
        Write(layer, "LABEL(t:\"" + std::to_string(number) + "\",s:2.5g)", point);
    }

private:
    static std::string Pen(std::uint32_t color)
    {
        char style[32];
        std::snprintf(style, sizeof style, "PEN(c:#%06x)", static_cast<unsigned>(color));
        return style;
    }
    void Write(int layer, const std::string& style, const OGRGeometry& geometry)
    {
        OGRFeature feature(output.GetLayerDefn());
        feature.SetField("Layer", bench::CWriteScene::kLayers[static_cast<std::size_t>(layer)]);
        feature.SetStyleString(style.c_str());
        feature.SetGeometry(&geometry);
        if (output.CreateFeature(&feature) != OGRERR_NONE) {
            std::exit(1);
        }
    }

    OGRLayer& output;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        return 2;
    }
    GDALAllRegister();
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("DXF");
    const std::unique_ptr<GDALDataset> drawing(
        driver != nullptr ? driver->Create(argv[1], 0, 0, 0, GDT_Unknown, nullptr) : nullptr);
    OGRLayer* layer = drawing != nullptr ? drawing->CreateLayer("entities") : nullptr;
    if (layer == nullptr) {
        return 1;
    }
    CSink sink(*layer);
    bench::CWriteScene().Draw(std::atol(argv[2]), sink);
    return 0;
}
