// SPDX-License-Identifier: MIT
//
// Converts the lines of a drawing to MIF/MID tables, one pair a layer; docs/tutorial.md builds it
// step by step.
//
//     DrawingToTables drawing.dxf folder
//
// Read CountEntities first.

#include "VelorExchange/DXF.h"
#include "VelorExchange/Foundation.h"
#include "VelorExchange/MIF.h"

#include <QTextCodec>

#include <cstdio>
#include <map>

using namespace VelorExchange;

class CTables final : public dxf::IDXFReader
{
public:
    explicit CTables(mif::IMIFWriter& target) : writer(target) { }

    bool OnLine(const dxf::CLineDXF& line) override { return Add({line.start, line.end}, line); }

    bool OnLWPolyline(const dxf::CLWPolylineDXF& line) override
    {
        std::vector<CPoint3D> points;
        for (const dxf::CVertexDXF& vertex : line.vertices) {
            points.push_back(vertex.point);
        }
        return Add(points, line);
    }

    bool OnBlock(const dxf::CBlockDXF& block) override
    {
        blocks[block.name] = block; // a record lives for the call only
        return true;
    }

    bool OnInsert(const dxf::CInsertDXF& insert) override
    {
        const auto block = blocks.find(insert.name);
        if (block != blocks.end() && depth < 16) { // a block that inserts itself has no end
            ++depth;
            dxf::ParseBlock(block->second, insert, this);
            --depth;
        }
        return true;
    }

private:
    bool Add(const std::vector<CPoint3D>& points, const dxf::CEntityDXF& head)
    {
        mif::CPolylineMIF line;
        for (const CPoint3D& point : points) {
            line.points.push_back({point.x, point.y});
        }
        line.pen.color = head.color == dxf::kByBlockColor ? 0 : head.color;
        return writer.AddPolyline(line, head.layer.isEmpty() ? QString("0") : head.layer);
    }

    mif::IMIFWriter& writer;
    std::map<QString, dxf::CBlockDXF> blocks;
    int depth = 0;
};

int main(int argc, char** argv)
try {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    CExportLog log;
    mif::IMIFWriter* writer = mif::CreateMIFWriter(nullptr);
    writer->Init(&log);
    CTables tables(*writer);
    const bool isRead = argc == 3 && dxf::Read(QString::fromLocal8Bit(argv[1]), &tables);
    if (isRead) {
        writer->Rewrite(QString::fromLocal8Bit(argv[2]), nullptr);
    } else {
        std::fputs("usage: DrawingToTables DRAWING FOLDER, of a drawing that can be read\n",
                   stderr);
    }
    mif::DeleteMIFWriter(writer);
    QString report;
    log.GetText(report);
    std::puts(report.toUtf8().constData());
    return isRead ? 0 : 1;
} catch (const FileError& error) {
    std::fprintf(stderr, "%s cannot be written\n", error.fileName.toUtf8().constData());
    return 1;
}
