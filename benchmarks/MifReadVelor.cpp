// SPDX-License-Identifier: MIT
// mif_read_velor PATH: reads a pair through this library with a host that looks at each record.
#include "VelorExchange/MIF.h"

#include <QTextCodec>

#include <cstdio>

using namespace VelorExchange::mif;

namespace {

class CSummingHost final : public IMIFReader
{
public:
    double sum = 0;
    long objects = 0;

    void AddArc(const CArcMIF& r) override { Count(r, r.corner1.x); }
    void AddRoundRect(const CRoundRectMIF& r) override { Count(r, r.corner1.x); }
    void AddEllipse(const CRectMIF& r) override { Count(r, r.corner1.x); }
    void AddRect(const CRectMIF& r) override { Count(r, r.corner1.x); }
    void AddText(const CTextMIF& r) override { Count(r, r.corner1.x); }
    void AddPolyline(const CPolylineMIF& r) override { Count(r, r.points.front().x); }
    void AddRegion(const CRegionMIF& r) override { Count(r, r.points.front().x); }
    void AddPoint(const CPointMIF& r) override { Count(r, r.position.x); }
    void SetProgressRange(int) override { }
    void SetProgress(int) override { }
    void Finish() override { }

private:
    void Count(const CAttributeHolderMIF& record, double x)
    {
        ++objects;
        sum += x + record.attributes[0].value.toInt() + record.attributes[3].value.toDouble();
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
