// SPDX-License-Identifier: MIT
//
// Counts the entities of a drawing by kind.
//
//     CountEntities drawing.dxf
//
// It demonstrates:
// * a host that derives from IDXFReader and overrides only what it wants;
// * that the result of an operation does not matter, while a gate (OnSection) chooses sections;
// * that the entities of a block come all at once, in the block;
// * what the host decides alone: the local codec, by which 8-bit text is decoded.
//
// This is the simplest example; ListLayers comes next.

#include "VelorExchange/DXF.h"

#include <QString>
#include <QTextCodec>

#include <cstdio>
#include <map>
#include <string>

namespace dxf = VelorExchange::dxf;

namespace {

class CCounter final : public dxf::IDXFReader
{
public:
    // The TABLES section (1) and the OBJECTS section (4) hold nothing to count here.
    bool OnSection(int stage) override { return stage == 2 || stage == 3; }

    bool OnLine(const dxf::CLineDXF& /*line*/) override { return Count("lines"); }
    bool OnArc(const dxf::CArcDXF& arc) override
    {
        return Count(arc.startAngle == arc.endAngle ? "circles" : "arcs");
    }
    bool OnPolyline(const dxf::CPolylineDXF& /*polyline*/) override { return Count("polylines"); }
    bool OnLWPolyline(const dxf::CLWPolylineDXF& /*polyline*/) override
    {
        return Count("polylines");
    }
    bool OnSpline(const dxf::CSplineDXF& /*spline*/) override { return Count("splines"); }
    bool OnPoint(const dxf::CPointDXF& /*point*/) override { return Count("points"); }
    bool OnText(const dxf::CTextDXF& /*text*/) override { return Count("texts"); }
    bool OnMText(const dxf::CMTextDXF& /*text*/) override { return Count("texts"); }
    bool OnHatch(const dxf::CHatchDXF& /*hatch*/) override { return Count("hatches"); }
    bool OnInsert(const dxf::CInsertDXF& /*insert*/) override { return Count("inserts"); }

    bool OnBlock(const dxf::CBlockDXF& block) override
    {
        inBlocks += block.entities.size();
        return Count("blocks");
    }

    std::map<std::string, int> counts;
    std::size_t inBlocks = 0;

private:
    bool Count(const char* kind)
    {
        ++counts[kind];
        return true;
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: %s drawing.dxf\n", argv[0]);
        return 2;
    }
    // Drawings before AC1021 hold text of one byte a letter; here it is taken as Cyrillic.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));

    CCounter counter;
    if (!dxf::Read(QString::fromLocal8Bit(argv[1]), &counter)) {
        std::fprintf(stderr, "%s cannot be opened, or ends inside a block\n", argv[1]);
        return 1;
    }
    for (const auto& [kind, count] : counter.counts) {
        std::printf("%-10s %d\n", kind.c_str(), count);
    }
    std::printf("%-10s %zu\n", "in blocks", counter.inBlocks);
    return 0;
}
