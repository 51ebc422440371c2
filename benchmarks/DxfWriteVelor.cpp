// SPDX-License-Identifier: MIT
// Writes the scene through this library: DxfWriteVelor OUT OBJECTS.
#include "VelorExchange/DXF.h"

#include "WriteScene.h"

#include <cstdlib>
#include <memory>

using namespace VelorExchange::dxf;

namespace {

class CSink
{
public:
    explicit CSink(IDXFWriter& target) : writer(target)
    {
        for (const char* name : bench::CWriteScene::kLayers) {
            layers.push_back(QString::fromLatin1(name));
        }
        label.height = 2.5;
    }

    void Contour(int layer, quint32 color, const bench::CSpot* spots)
    {
        contour.layer = layers[static_cast<std::size_t>(layer)];
        contour.color = color;
        contour.vertices.resize(bench::CWriteScene::kContour);
        for (CVertexDXF& vertex : contour.vertices) {
            vertex.point = {spots->x, spots->y, 0};
            ++spots;
        }
        writer.AddPolyline(contour);
    }
    void Line(int layer, quint32 color, const bench::CSpot& from, const bench::CSpot& to)
    {
        line.layer = layers[static_cast<std::size_t>(layer)];
        line.color = color;
        line.start = {from.x, from.y, 0};
        line.end = {to.x, to.y, 0};
        writer.AddLine(line);
    }
    void Height(int layer, quint32 color, const bench::CSpot& spot, double z)
    {
        point.layer = layers[static_cast<std::size_t>(layer)];
        point.color = color;
        point.point = {spot.x, spot.y, z};
        writer.AddPoint(point);
    }
    void Label(int layer, quint32 color, const bench::CSpot& spot, long number)
    {
        label.layer = layers[static_cast<std::size_t>(layer)];
        label.color = color;
        label.position = {spot.x, spot.y};
        label.text = QString::number(number);
        writer.AddText(label);
    }

private:
    IDXFWriter& writer;
    std::vector<QString> layers;
    CLWPolylineDXF contour;
    CLineDXF line;
    CPointDXF point;
    CTextDXF label;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        return 2;
    }
    const std::unique_ptr<IDXFWriter, decltype(&DeleteDXFWriter)> writer(CreateDXFWriter(nullptr),
                                                                         &DeleteDXFWriter);
    CSink sink(*writer);
    bench::CWriteScene().Draw(std::atol(argv[2]), sink);
    writer->Rewrite(QString::fromLocal8Bit(argv[1]));
    return 0;
}
