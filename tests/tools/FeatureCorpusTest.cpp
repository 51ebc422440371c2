// SPDX-License-Identifier: MIT
// Real drawings that others made, as streams of features. The files are not part of the tree.
#include "tests/support/Corpus.h"
#include "tests/support/FeatureRecorder.h"
#include "tools/velorx/features/DxfFeatureSource.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/FiniteFeature.h"
#include "tools/velorx/formats/DxfContent.h"
#include "tools/velorx/info/Family.h"

#include <QDir>
#include <QDirIterator>

#include <gtest/gtest.h>

#include <map>

namespace velorx::test {

using VelorExchange::test::CorpusFolder;

namespace {

using CCounts = std::map<std::string, qint64>;

template <class TFeatures>
void Check(const TFeatures& features, CCounts& counts)
{
    for (const auto& feature : features) {
        ++counts[feature.kind];
        EXPECT_TRUE(IsFinite(feature)) << feature.kind;
        EXPECT_FALSE(feature.layer.isEmpty()) << feature.kind;
    }
}

void CheckShapes(const CFeatureRecorder& read)
{
    for (const SLineFeature& line : read.lines) {
        EXPECT_GE(line.points.size(), 2U) << line.kind;
    }
    for (const SAreaFeature& area : read.areas) {
        EXPECT_FALSE(area.rings.empty()) << area.kind;
        for (const CFeatureLine& ring : area.rings) {
            EXPECT_GE(ring.size(), 3U) << area.kind;
        }
    }
    for (const STextFeature& text : read.texts) {
        EXPECT_GT(text.height, 0) << text.text.toStdString();
        EXPECT_FALSE(text.text.trimmed().isEmpty());
    }
}

// Whatever was met was handed on, or is listed as left out. Of a multiline several lines come.
void CheckCounts(const CConversionReport& report, const CCounts& features)
{
    CCounts met;
    CCounts ended;
    for (const SConvertedKind& kind : report.kinds) {
        met[kind.name.toStdString()] += kind.inDrawing + kind.inBlocks;
        if (kind.name == "INSERT") {
            ended["INSERT"] += kind.written;
        } else if (kind.name == "ATTDEF") {
            ended["ATTDEF"] += kind.inBlocks;
        }
    }
    for (const auto& [kind, count] : features) {
        ended[kind] += kind == "INSERT" ? 0 : count;
    }
    for (const SConversionLoss& loss : report.losses) {
        const int comma = loss.what.indexOf(", ");
        const std::string kind = loss.what.left(comma).toStdString();
        if (loss.what.endsWith(": left out") && met.count(kind) != 0) {
            ended[kind] += loss.count;
        }
    }
    for (const auto& [kind, count] : met) {
        if (kind == "MLINE") {
            EXPECT_GE(ended[kind], count);
        } else {
            EXPECT_EQ(ended[kind], count) << kind;
        }
    }
}

void CheckDrawing(const QString& path, qint64& all)
{
    CFeatureRecorder read;
    CFeatureTally tally;
    EXPECT_EQ(CDxfFeatureSource(path, SSourceOptions()).Read(read, tally), QString());
    CCounts features;
    Check(read.points, features);
    Check(read.lines, features);
    Check(read.areas, features);
    Check(read.texts, features);
    Check(read.images, features);
    CheckShapes(read);
    CConversionReport report;
    tally.FillReport(report);
    CheckCounts(report, features);
    EXPECT_EQ(read.heads.size(), 1U);
    for (const auto& [kind, count] : features) {
        all += count;
    }
}

} // namespace

TEST(FeatureCorpus, EveryDrawingIsReadAndNothingGetsLostInSilence)
{
    QDirIterator files(CorpusFolder() + "/dxf", {"*.dxf"}, QDir::Files,
                       QDirIterator::Subdirectories);
    int count = 0;
    qint64 features = 0;
    while (files.hasNext()) {
        const QString path = files.next();
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        if (!IsDxfContent(file.read(kHeadSize))) {
            continue;
        }
        SCOPED_TRACE(path.toStdString());
        CheckDrawing(path, features);
        ++count;
    }
    if (count == 0) {
        GTEST_SKIP() << "no corpus at " << CorpusFolder().toStdString();
    }
    EXPECT_GT(count, 100);
    EXPECT_GT(features, 10000);
    RecordProperty("features", std::to_string(features));
}

} // namespace velorx::test
