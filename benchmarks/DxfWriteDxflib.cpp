// SPDX-License-Identifier: MIT
// Writes the scene through dxflib: DxfWriteDxflib OUT OBJECTS.
#include "WriteScene.h"

#include <dxflib/dl_dxf.h>

#include <cstdlib>
#include <memory>
#include <string>

namespace {

class CSink
{
public:
    CSink(DL_Dxf& library, DL_WriterA& target) : dxf(library), writer(target) { }

    void Contour(int layer, std::uint32_t color, const bench::CSpot* spots)
    {
        constexpr auto kCount = static_cast<int>(bench::CWriteScene::kContour);
        dxf.writePolyline(writer, DL_PolylineData(kCount, 0, 0, 0), Attributes(layer, color));
        for (int i = 0; i < kCount; ++i) {
            dxf.writeVertex(writer, DL_VertexData(spots[i].x, spots[i].y, 0, 0));
        }
        dxf.writePolylineEnd(writer);
    }
    void Line(int layer, std::uint32_t color, const bench::CSpot& from, const bench::CSpot& to)
    {
        dxf.writeLine(writer, DL_LineData(from.x, from.y, 0, to.x, to.y, 0),
                      Attributes(layer, color));
    }
    void Height(int layer, std::uint32_t color, const bench::CSpot& spot, double z)
    {
        dxf.writePoint(writer, DL_PointData(spot.x, spot.y, z), Attributes(layer, color));
    }
    void Label(int layer, std::uint32_t color, const bench::CSpot& spot, long number)
    {
        const DL_TextData text(spot.x, spot.y, 0, spot.x, spot.y, 0, 2.5, 1, 0, 0, 0,
                               std::to_string(number), "STANDARD", 0);
        dxf.writeText(writer, text, Attributes(layer, color));
    }

private:
    static DL_Attributes Attributes(int layer, std::uint32_t color)
    {
        return DL_Attributes(bench::CWriteScene::kLayers[static_cast<std::size_t>(layer)], 7,
                             static_cast<int>(color), -1, "CONTINUOUS");
    }

    DL_Dxf& dxf;
    DL_WriterA& writer;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        return 2;
    }
    DL_Dxf dxf;
    const std::unique_ptr<DL_WriterA> writer(dxf.out(argv[1], DL_VERSION_2000));
    if (writer == nullptr) {
        return 1;
    }
    dxf.writeHeader(*writer);
    writer->sectionEnd();
    writer->sectionEntities();
    CSink sink(dxf, *writer);
    bench::CWriteScene().Draw(std::atol(argv[2]), sink);
    writer->sectionEnd();
    dxf.writeObjects(*writer);
    dxf.writeObjectsEnd(*writer);
    writer->dxfEOF();
    writer->close();
    return 0;
}
