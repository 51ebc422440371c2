// SPDX-License-Identifier: MIT
// What a host is at least: it reads a drawing through the installed library and prints its layers.
// Built against an installed copy, once found by CMake and once by pkg-config.
#include <VelorExchange/DXF.h>
#include <VelorExchange/Foundation.h>

#include <QString>

#include <cstdio>

using namespace VelorExchange;

namespace {

class CLayers final : public dxf::IDXFReader
{
public:
    bool OnLayer(const dxf::CLayerDXF& layer) override
    {
        std::printf("%s\n", layer.name.toUtf8().constData());
        return true;
    }

    bool OnInsert(const dxf::CInsertDXF& insert) override
    {
        return dxf::ParseBlock(dxf::CBlockDXF{}, insert, this);
    }
};

} // namespace

int main(int argc, char** argv)
{
    CLayers layers;
    CExportLog log;
    QString report;
    const CPoint2D point{1, 2};
    return argc == 2 && point.y > point.x && dxf::Read(QString::fromLocal8Bit(argv[1]), &layers)
            && dxf::NumColACAD2RGB(1) == 0xFFUL && log.GetText(report) == report.size()
        ? 0
        : 1;
}
