// SPDX-License-Identifier: MIT
// Reads the input as a drawing, with a host that looks at every record and replays every block.
#include "VelorExchange/DXF.h"

#include "MemoryFile.h"

#include <cstdint>

using namespace VelorExchange::dxf;

namespace {

// Counts what comes, so that nothing of a record stays unread.
class CHost final : public IDXFReader
{
public:
    explicit CHost(int depth) : replays(depth) { }

    bool OnPolyline(const CPolylineDXF& r) override { return Add(r.layer, r.vertices.size()); }
    bool OnMLine(const CMLineDXF& r) override { return Add(r.style.name, r.segments.size()); }
    bool OnLWPolyline(const CLWPolylineDXF& r) override { return Add(r.layer, r.vertices.size()); }
    bool OnSpline(const CSplineDXF& r) override { return Add(r.layer, r.knots.size()); }
    bool OnSolid(const CSolidDXF& r) override { return Add(r.layer, r.points.size()); }
    bool OnLine(const CLineDXF& r) override { return Add(r.lineStyle.name, 1); }
    bool OnImage(const CImageDXF& r) override { return Add(r.filePath + r.name, r.clip.size()); }
    bool OnHatch(const CHatchDXF& r) override { return Add(r.style.name, r.loops.size()); }
    bool OnMText(const CMTextDXF& r) override { return Add(r.text, 1); }
    bool OnText(const CTextDXF& r) override { return Add(r.text, 1); }
    bool OnLayer(const CLayerDXF& r) override { return Add(r.name, 1); }

    bool OnInsert(const CInsertDXF& r) override
    {
        insert = r;
        return Add(r.name, r.attributes.size());
    }

    // Under the insert met last, and deeper for what that gives.
    bool OnBlock(const CBlockDXF& block) override
    {
        if (replays > 0) {
            CHost inner(replays - 1);
            ParseBlock(block, insert, &inner);
            ParseBlock(block, inner.insert, &inner);
            total += inner.total;
        }
        return Add(block.name, block.entities.size());
    }

    std::size_t total = 0;

private:
    bool Add(const QString& text, std::size_t count)
    {
        total += static_cast<std::size_t>(text.size()) + count;
        return true;
    }

    int replays;
    CInsertDXF insert;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::CMemoryFile file(data, size);
    CHost host(1);
    Read(file.Path(), &host);
    return 0;
}
