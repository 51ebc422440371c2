// SPDX-License-Identifier: MIT
// Writes a drawing from nothing: a street with a line style of its own, a tree as a block with an
// attribute that is inserted twice, a lawn with a pattern, and the report at the end.
//
// Usage: DxfFromScratch OUT.dxf
//
// Demonstrates the order of calls, blocks, styles, the export report and the one exception. The C form
// of a part of it is DxfFlat.c.
#include "VelorExchange/DXF.h"
#include "VelorExchange/Foundation.h"

#include <QString>

#include <cstdio>
#include <memory>

using namespace VelorExchange;
using namespace VelorExchange::dxf;

namespace {

void AddStreet(IDXFWriter& writer)
{
    CLWPolylineDXF street;
    street.layer = QStringLiteral("Улицы");
    street.color = 0x0000FF; // red: the low byte comes first
    street.lineWeight = 0.5; // millimetres
    street.lineStyle.name = QStringLiteral("DASHED");
    street.lineStyle.pattern = {2.0, -1.0};
    street.vertices = {{{0, 0, 0}, 0.0}, {{50, 0, 0}, 0.5}, {{50, 30, 0}, 0.0}};
    writer.AddPolyline(street);
}

void AddTrees(IDXFWriter& writer)
{
    writer.BeginBlock(QStringLiteral("Tree"), true, QString()); // takes the insert's colour
    CArcDXF crown; // a whole circle by its defaults
    crown.radius = 2;
    writer.AddArc(crown);
    writer.EndBlock();

    CInsertDXF tree;
    tree.name = QStringLiteral("Tree");
    tree.layer = QStringLiteral("Деревья");
    tree.color = 0x00A000;
    CAttribDXF kind;
    kind.tag = QStringLiteral("KIND");
    kind.text = QStringLiteral("липа");
    kind.height = 1;
    tree.attributes = {kind};
    for (const double x : {10.0, 30.0}) {
        tree.point = {x, 6, 0};
        tree.attributes[0].position = {x + 3, 6};
        writer.AddInsert(tree);
    }
}

void AddLawn(IDXFWriter& writer)
{
    CHatchDXF lawn;
    lawn.layer = QStringLiteral("Газон");
    lawn.color = 0x80FF80;
    lawn.outline = {{5, 12, 0}, {40, 12, 0}, {40, 25, 0}, {5, 25, 0}};
    lawn.style.name = QStringLiteral("ANSI31");
    CHatchLineDXF lines;
    lines.angle = 45; // degrees, as in pattern files
    lines.offsetX = -1;
    lines.offsetY = 1;
    lawn.style.lines = {lines};
    writer.AddHatch(lawn);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUT.dxf\n", argv[0]);
        return 2;
    }
    try {
        CExportLog log;
        log.SetOutputFile(QString::fromLocal8Bit(argv[1]));
        const std::unique_ptr<IDXFWriter, decltype(&DeleteDXFWriter)> writer(
            CreateDXFWriter(nullptr), &DeleteDXFWriter);
        writer->Init(1018, &log);
        AddStreet(*writer);
        AddTrees(*writer);
        AddLawn(*writer);
        writer->Rewrite(QString::fromLocal8Bit(argv[1]));
        QString report;
        log.GetText(report);
        std::puts(report.toLocal8Bit().constData());
        return 0;
    } catch (const FileError& error) {
        std::fprintf(stderr, "can't write %s\n", error.fileName.toLocal8Bit().constData());
        return 1;
    }
}
