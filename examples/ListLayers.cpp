// SPDX-License-Identifier: MIT
//
// Lists the layers of a drawing, each with its colour and its state.
//
//     ListLayers drawing.dxf
//
// It demonstrates:
// * how to read only a part of a file: every section but TABLES is refused, so that a big drawing
//   costs little more than looking for the ends of its sections;
// * the order of the bytes of a colour: red is the lowest;
// * what a layer tells beside its name.
//
// Read CountEntities first.

#include "VelorExchange/DXF.h"

#include <QString>
#include <QTextCodec>

#include <cstdio>

namespace dxf = VelorExchange::dxf;

namespace {

class CLayerLister final : public dxf::IDXFReader
{
public:
    bool OnSection(int stage) override { return stage == kTables; }

    // A record lives for the call only; a host that needs it later copies it.
    bool OnLayer(const dxf::CLayerDXF& layer) override
    {
        const unsigned red = layer.color & 0xFFU;
        const unsigned green = (layer.color >> 8U) & 0xFFU;
        const unsigned blue = (layer.color >> 16U) & 0xFFU;
        std::printf("#%02X%02X%02X %-9s %-6s %s\n", red, green, blue,
                    layer.visible ? "visible" : "invisible", layer.unlocked ? "" : "locked",
                    layer.name.toUtf8().constData());
        return true;
    }

private:
    static constexpr int kTables = 1;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: %s drawing.dxf\n", argv[0]);
        return 2;
    }
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));

    CLayerLister lister;
    if (!dxf::Read(QString::fromLocal8Bit(argv[1]), &lister)) {
        std::fprintf(stderr, "%s cannot be opened\n", argv[1]);
        return 1;
    }
    return 0;
}
