// SPDX-License-Identifier: MIT
// Reads a drawing through this library with a host that looks at each record's chief fields.
#include "VelorExchange/DXF.h"

#include <QTextCodec>

#include <cstdio>

using namespace VelorExchange::dxf;

namespace {

class CSummingHost final : public IDXFReader
{
public:
    double sum = 0;
    long objects = 0;

    bool OnPolyline(const CPolylineDXF& r) override
    {
        for (const CVertexDXF& vertex : r.vertices) {
            sum += vertex.point.x;
        }
        return Count(r.layer);
    }
    bool OnLWPolyline(const CLWPolylineDXF& r) override
    {
        for (const CVertexDXF& vertex : r.vertices) {
            sum += vertex.point.x;
        }
        return Count(r.layer);
    }
    bool OnLine(const CLineDXF& r) override { return Count(r.layer, r.start.x + r.end.x); }
    bool OnArc(const CArcDXF& r) override { return Count(r.layer, r.center.x + r.radius); }
    bool OnInsert(const CInsertDXF& r) override { return Count(r.layer, r.point.x); }
    bool OnHatch(const CHatchDXF& r) override { return Count(r.layer, r.angle); }
    bool OnText(const CTextDXF& r) override { return Count(r.text, r.position.x); }
    bool OnPoint(const CPointDXF& r) override { return Count(r.layer, r.point.x); }

private:
    bool Count(const QString& text, double value = 0)
    {
        ++objects;
        sum += value + text.size();
        return true;
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    CSummingHost host;
    const bool good = Read(path, &host);
    std::printf("%ld objects, sum %.3f\n", host.objects, host.sum);
    return good ? 0 : 1;
}
