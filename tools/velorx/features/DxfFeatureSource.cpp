// SPDX-License-Identifier: MIT
#include "tools/velorx/features/DxfFeatureSource.h"

#include "tools/velorx/ConversionReport.h"
#include "tools/velorx/features/DxfFeatureLosses.h"
#include "tools/velorx/features/DxfFeatureReader.h"
#include "tools/velorx/formats/DxfContent.h"
#include "tools/velorx/formats/DxfMender.h"
#include "tools/velorx/formats/DxfSurvey.h"
#include "tools/velorx/formats/DxfTally.h"
#include "VelorExchange/dxf/read/Read.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace velorx {

namespace {

// What the first look counts and features keep all the same, or what is lost in a drawing alone.
constexpr EDxfLoss kKept[] = {
    EDxfLoss::BlockBasePoints, EDxfLoss::FollowedLines,      EDxfLoss::AttDefPrompts,
    EDxfLoss::AttDefFlags,     EDxfLoss::TrueBlacks,         EDxfLoss::LayerColours,
    EDxfLoss::LayerLineTypes,  EDxfLoss::LayerLineWeights,   EDxfLoss::LineTypePatterns,
    EDxfLoss::TwoVertexClosed, EDxfLoss::HatchPatternScales, EDxfLoss::DrawingUnits,
    EDxfLoss::HeaderVariables, EDxfLoss::HiddenAttributes,   EDxfLoss::LayersOff,
};

// Pictures are counted where they are drawn.
bool IsPicture(const QString& what)
{
    const auto kinds = CDxfPictures::Kinds();
    return std::any_of(kinds.begin(), kinds.end(), [&what](const char* kind) {
        return what == QLatin1String(kind) + QLatin1String(losses::kNotRead);
    });
}

bool IsKept(const QString& what)
{
    return std::any_of(std::begin(kKept), std::end(kKept),
                       [&what](EDxfLoss loss) { return what == QLatin1String(LossText(loss)); });
}

void HandOnLosses(const CDxfTally& counts, CFeatureTally& tally)
{
    CConversionReport report;
    counts.FillReport(report);
    for (const SConversionLoss& loss : report.losses) {
        if (IsKept(loss.what) || IsPicture(loss.what)) {
            continue;
        }
        qint64 rest = loss.count;
        for (const auto& [layer, count] : loss.layers) {
            rest -= count;
            tally.Lose(loss.what, layer, count);
        }
        if (rest > 0) {
            tally.Lose(loss.what, QString(), rest);
        }
    }
}

// What the first look knows in the end alone.
void HandOnRest(const CDxfSurvey& survey, CFeatureTally& tally)
{
    const auto lose = [&tally](const char* what, qint64 count) {
        if (count > 0) {
            tally.Lose(QLatin1String(what), QString(), count);
        }
    };
    lose(losses::kLineTypes, survey.LineTypes().WithSymbols());
    lose(LossText(EDxfLoss::HiddenAttributes), survey.HiddenTags().Mixed());
    lose(losses::kFollowedColours, survey.Colours().Followers(false));
    survey.Colours().ForMixedLayers([&tally](const QString& layer, qint64 count) {
        tally.Lose(QLatin1String(LossText(EDxfLoss::ExplicitByLayer)), layer, count);
    });
}

// File names keep the bytes that the shell handed over.
QString NameOf(const QString& path)
{
    const QByteArray name = QFile::encodeName(QFileInfo(path).completeBaseName());
    return QString::fromUtf8(name.constData());
}

} // namespace

// Two passes: the first for what the reader leaves out, the second through the library, over a copy where it
// would take something for what it is not.
QString CDxfFeatureSource::Read(IFeatureSink& sink, CFeatureTally& tally)
{
    const QString fault = WhyNoDrawing(path);
    if (!fault.isEmpty()) {
        return fault;
    }
    CDxfTally counts;
    CDxfSurvey survey(counts);
    if (!survey.Read(path)) {
        return QStringLiteral("it cannot be opened");
    }
    QTemporaryFile mended;
    const QString source = survey.Mendings().AreNeeded() ? Mend(path, mended) : path;
    if (source.isEmpty()) {
        return QStringLiteral("a temporary copy of it cannot be written");
    }
    sink.TakeHead({NameOf(path), 0});
    CDxfFeatureReader reader(sink, tally, survey, counts, options);
    const bool isWhole = VelorExchange::dxf::Read(source, &reader);
    reader.Finish();
    counts.EndReading();
    HandOnLosses(counts, tally);
    HandOnRest(survey, tally);
    if (!HasEndMark(path)) {
        tally.Remark(QLatin1String(kNoEndMark));
    }
    return isWhole ? QString() : QStringLiteral("the drawing ends inside a block");
}

} // namespace velorx
