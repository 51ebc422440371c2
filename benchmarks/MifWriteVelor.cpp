// SPDX-License-Identifier: MIT
// mif_write_velor FOLDER COUNT: writes generated objects through this library into one pair.
#include "VelorExchange/MIF.h"

#include "MifSurvey.h"

#include <QTextCodec>

#include <cstdlib>

using namespace VelorExchange;
using namespace VelorExchange::mif;

namespace {

const QString kLayer = QStringLiteral("survey");

void FillAttributes(CAttributeHolderMIF& record, const bench::CMifObject& object)
{
    static const QString kNames[] = {QStringLiteral("number"), QStringLiteral("name"),
                                     QStringLiteral("use"), QStringLiteral("area"),
                                     QStringLiteral("height")};
    record.attributes = {{kNames[0], object.number},
                         {kNames[1], QString::fromStdString(object.name)},
                         {kNames[2], QString::fromStdString(object.use)},
                         {kNames[3], object.area},
                         {kNames[4], QVariant::fromValue(object.height)}};
}

std::vector<CPoint2D> Points(const bench::CMifObject& object)
{
    std::vector<CPoint2D> points;
    for (std::size_t i = 0; i < object.coordinates.size(); i += 2) {
        points.push_back({object.coordinates[i], object.coordinates[i + 1]});
    }
    return points;
}

void Add(IMIFWriter& writer, const bench::CMifObject& object)
{
    const std::vector<double>& c = object.coordinates;
    if (object.kind == bench::EMifKind::Parcel) {
        CRegionMIF region;
        FillAttributes(region, object);
        region.points = Points(object);
        writer.AddRegion(region, kLayer);
    } else if (object.kind == bench::EMifKind::Contour) {
        CPolylineMIF line;
        FillAttributes(line, object);
        line.points = Points(object);
        writer.AddPolyline(line, kLayer);
    } else if (object.kind == bench::EMifKind::Height) {
        CPointMIF point;
        FillAttributes(point, object);
        point.position = {c[0], c[1]};
        point.symbol.shape = 35;
        writer.AddPoint(point, kLayer);
    } else {
        CTextMIF text;
        FillAttributes(text, object);
        text.text = QString::fromStdString(object.name);
        text.corner1 = {c[0], c[1]};
        text.corner2 = {c[2], c[3]};
        writer.AddText(text, kLayer);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        return 2;
    }
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    CExportLog log;
    IMIFWriter* const writer = CreateMIFWriter(nullptr);
    writer->Init(&log);
    bench::CMifSurvey survey;
    for (long i = std::atol(argv[2]); i > 0; --i) {
        Add(*writer, survey.Next());
    }
    writer->Rewrite(QString::fromLocal8Bit(argv[1]), nullptr);
    DeleteMIFWriter(writer);
    return 0;
}
