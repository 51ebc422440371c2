// SPDX-License-Identifier: MIT
// Reads a drawing through dxflib with a host that counts objects and sums coordinates.
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <cstdio>

namespace {

class CHost final : public DL_CreationAdapter
{
public:
    long objects = 0;
    double sum = 0;

    void addPoint(const DL_PointData& d) override { Count(d.x); }
    void addLine(const DL_LineData& d) override { Count(d.x1 + d.x2); }
    void addArc(const DL_ArcData& d) override { Count(d.cx); }
    void addCircle(const DL_CircleData& d) override { Count(d.cx); }
    void addPolyline(const DL_PolylineData&) override { Count(0); }
    void addVertex(const DL_VertexData& d) override { sum += d.x; }
    void addInsert(const DL_InsertData& d) override { Count(d.ipx); }
    void addText(const DL_TextData& d) override { Count(d.ipx); }
    void addHatch(const DL_HatchData& d) override { Count(d.angle); }

private:
    void Count(double value)
    {
        ++objects;
        sum += value;
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        return 2;
    }
    CHost host;
    DL_Dxf dxf;
    const bool good = dxf.in(argv[1], &host);
    std::printf("%ld objects, sum %.3f\n", host.objects, host.sum);
    return good ? 0 : 1;
}
