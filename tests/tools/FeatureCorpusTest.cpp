// SPDX-License-Identifier: MIT
// Real drawings that others made, as streams of features. The files are not part of the tree.
#include "tests/support/Corpus.h"
#include "tests/support/FeatureRecorder.h"
#include "tests/tools/DxfStream.h"
#include "tests/tools/DxfWritten.h"
#include "tools/velorx/convert/SafeNames.h"
#include "tools/velorx/features/DxfFeatureSource.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/FiniteFeature.h"
#include "tools/velorx/formats/DxfContent.h"
#include "tools/velorx/info/Family.h"

#include <QDir>
#include <QDirIterator>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

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
        if (kind.writtenAs == "what its block holds" || kind.writtenAs == "attribute of its object")
        {
            ended[kind.name.toStdString()] += kind.written;
        } else if (kind.name == "ATTDEF") {
            ended["ATTDEF"] += kind.inBlocks;
        }
    }
    for (const auto& [kind, count] : features) {
        ended[kind] += count;
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

// Every drawing of the folder that starts like one; false if there is none.
template <class TCheck>
int ForEachDrawing(TCheck check)
{
    QDirIterator files(CorpusFolder() + "/dxf", {"*.dxf"}, QDir::Files,
                       QDirIterator::Subdirectories);
    int count = 0;
    while (files.hasNext()) {
        const QString path = files.next();
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        if (IsDxfContent(file.read(kHeadSize))) {
            SCOPED_TRACE(path.toStdString());
            check(path);
            ++count;
        }
    }
    return count;
}

void CheckDrawing(const QString& path, qint64& all)
{
    CFeatureRecorder read;
    CFeatureTally tally;
    EXPECT_EQ(CDxfFeatureSource(path, SReadingOptions()).Read(read, tally), QString());
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

// Without vertices that lie on the one before them, which the library's reader leaves out.
CFeatureLine Merged(const CFeatureLine& line)
{
    constexpr double kCoincident = 1e-8; // squared
    CFeatureLine merged;
    for (const auto& p : line) {
        if (!merged.empty()) {
            const auto& last = merged.back();
            const double square = (p.x - last.x) * (p.x - last.x) + (p.y - last.y) * (p.y - last.y)
                + (p.z - last.z) * (p.z - last.z);
            if (square < kCoincident) {
                merged.pop_back();
            }
        }
        merged.push_back(p);
    }
    return merged;
}

// Features as lines of text.
class CAsText final : public IFeatureSink
{
public:
    /// `isCopy` if the names of layers went through our own writing.
    explicit CAsText(bool isFromCopy) : isCopy(isFromCopy)
    {
        layers.Define("DEFPOINTS", "Defpoints_1");
    }

    const char* Take(const SPointFeature& point) override
    {
        return Add(point, PointsOf({point.position}));
    }
    const char* Take(const SLineFeature& line) override
    {
        return Add(line, PointsOf(Merged(line.points)));
    }
    const char* Take(const SAreaFeature& area) override
    {
        std::vector<std::string> rings;
        for (const CFeatureLine& ring : area.rings) {
            rings.push_back(PointsOf(Merged(ring)));
        }
        std::sort(rings.begin(), rings.end());
        std::string text = area.fill.kind == EFeatureFill::None ? "area" : "filled area";
        for (const std::string& ring : rings) {
            text += ", " + ring;
        }
        return Add(area, text);
    }
    const char* Take(const STextFeature& words) override
    {
        return Add(words, PointsOf({words.position}) + ' ' + words.text.toStdString());
    }
    const char* Take(const SImageFeature& image) override
    {
        return Add(image, image.path.toStdString() + ' ' + std::to_string(image.clip.size()));
    }

    std::vector<std::string> features;

private:
    const char* Add(const SFeature& feature, std::string text)
    {
        const QString layer = isCopy ? feature.layer : layers.Of(feature.layer);
        text += " on " + layer.toStdString();
        if (feature.attributes != nullptr) {
            for (const SFeatureAttribute& attribute : *feature.attributes) {
                text += ", " + attribute.name.toStdString() + '='
                    + attribute.value.toString().toStdString();
            }
        }
        features.push_back(std::move(text));
        return "text";
    }

    bool isCopy;
    CSafeNames layers; ///< Their spelling in drawings that we write.
};

void CheckCopy(const QString& path)
{
    CAsText before(false);
    CAsText after(true);
    CFeatureTally tally;
    CDxfWritten copy;
    CDxfFeatureSource source(path, SReadingOptions());
    source.Read(before, tally);
    source.Read(*copy, tally);
    copy.ReadBackTo(after);
    ASSERT_EQ(before.features.size(), after.features.size());
    for (std::size_t i = 0; i < before.features.size(); ++i) {
        EXPECT_EQ(before.features[i], after.features[i]) << "feature " << i;
    }
}

} // namespace

TEST(FeatureCorpus, EveryDrawingIsReadAndNothingGetsLostInSilence)
{
    qint64 features = 0;
    const int count = ForEachDrawing([&](const QString& path) { CheckDrawing(path, features); });
    if (count == 0) {
        GTEST_SKIP() << "no corpus at " << CorpusFolder().toStdString();
    }
    EXPECT_GT(count, 100);
    EXPECT_GT(features, 10000);
}

TEST(FeatureCorpus, EveryDrawingComesBackFromItsCopy)
{
    const int count = ForEachDrawing([](const QString& path) { CheckCopy(path); });
    if (count == 0) {
        GTEST_SKIP() << "no corpus at " << CorpusFolder().toStdString();
    }
}

} // namespace velorx::test
