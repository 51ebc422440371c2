// SPDX-License-Identifier: MIT
// Real drawings of many programs, where they are at hand, against the counts expected of them.
#include "tests/support/Corpus.h"
#include "tests/support/DxfRecorder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

const char* EntityName(const CEntityVariantDXF& entity)
{
    static const char* const kNames[] = {"POINT",      "LINE",     "XLINE",  "ARC",   "SPLINE",
                                         "LWPOLYLINE", "POLYLINE", "TEXT",   "MTEXT", "SOLID",
                                         "HATCH",      "3DFACE",   "IMAGE",  "RAY",   "MLINE",
                                         "ATTDEF",     "INSERT",   "ELLIPSE"};
    const auto* arc = boost::variant2::get_if<CArcDXF>(&entity);
    return arc != nullptr && arc->startAngle == arc->endAngle ? "CIRCLE" : kNames[entity.index()];
}

QJsonObject Counted(const std::map<std::string, int>& counts)
{
    QJsonObject object;
    for (const auto& [name, count] : counts) {
        object[QString::fromStdString(name)] = count;
    }
    return object;
}

QByteArray Shown(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QJsonObject Observed(const QString& path)
{
    CDxfRecorder recorder;
    const bool result = Read(path, &recorder);
    std::map<std::string, int> inBlocks;
    for (const CBlockDXF& block : recorder.blocks) {
        for (const CEntityVariantDXF& entity : block.entities) {
            ++inBlocks[EntityName(entity)];
        }
    }
    return {{QStringLiteral("result"), result},
            {QStringLiteral("callbacks"), Counted(recorder.counts)},
            {QStringLiteral("block_entities"), Counted(inBlocks)}};
}

} // namespace

TEST(Corpus, EveryDrawingGivesTheExpectedCounts)
{
    const QString corpus = CorpusFolder();
    QFile expectedFile(corpus + QStringLiteral("/expected.json"));
    if (!expectedFile.open(QIODevice::ReadOnly)) {
        GTEST_SKIP() << "the collection of real drawings is not here";
    }
    const QJsonObject files = QJsonDocument::fromJson(expectedFile.readAll())[u"files"].toObject();
    int drawings = 0;
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QJsonObject facts = file.value().toObject();
        if (facts[u"family"].toString() != QStringLiteral("dxf")) {
            continue;
        }
        ++drawings;
        const QJsonObject reader = facts[u"reader"].toObject();
        const QJsonObject expected{{QStringLiteral("result"), reader[u"result"]},
                                   {QStringLiteral("callbacks"), reader[u"callbacks"]},
                                   {QStringLiteral("block_entities"), reader[u"block_entities"]}};
        const QJsonObject observed = Observed(corpus + QLatin1Char('/') + file.key());
        EXPECT_EQ(Shown(observed), Shown(expected)) << qPrintable(file.key());
    }
    EXPECT_GT(drawings, 100);
}
