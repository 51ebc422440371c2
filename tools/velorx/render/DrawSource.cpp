// SPDX-License-Identifier: MIT
#include "tools/velorx/render/DrawSource.h"

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/IFeatureSource.h"
#include "tools/velorx/render/PictureDevice.h"
#include "tools/velorx/render/PictureExtents.h"
#include "tools/velorx/render/PictureSink.h"
#include "tools/velorx/render/Typeface.h"

namespace velorx {

namespace {

// A printer's line is finer than a pixel of the screen.
constexpr double kThinnestOnScreen = 1.0;
constexpr double kThinnestOnPaper = 0.5;

// Outlines of more letters would make a file that no program likes to open.
constexpr qint64 kMostOutlines = 50'000;

SPictureStyle StyleFor(const SPictureJob& job, qint64 letters)
{
    const bool isSvg = job.format == EPictureFormat::Svg;
    SPictureStyle style;
    style.background = job.background;
    style.thinnest = job.format == EPictureFormat::Png ? kThinnestOnScreen : kThinnestOnPaper;
    // A document holds its fonts; any other picture would be at the mercy of those of its viewer.
    style.keepsText = job.format == EPictureFormat::Pdf || (isSvg && letters > kMostOutlines);
    style.mostWeight = isSvg ? job.mostSvg : 0.0;
    return style;
}

void AddRemarks(const CPictureSink& sink, const CLayerChoice& layers, CFeatureTally& tally)
{
    for (const QString& name : layers.Missing()) {
        tally.Remark(QStringLiteral("There is no layer ") + name);
    }
    if (sink.Drawn() == 0) {
        tally.Remark(QStringLiteral("There is nothing to show: the picture is empty"));
    }
    if (sink.IsSimplified()) {
        tally.Remark(QStringLiteral(
            "There are too many dashes or hatch lines: some are drawn solid, or as a tint"));
    }
    if (PickTypeface(QString()).isEmpty()) {
        tally.Remark(QStringLiteral("There is no font on this system: texts do not show"));
    }
}

} // namespace

QString DrawSource(IFeatureSource& source, const SPictureJob& job, CConversionReport& report)
{
    CLayerChoice layers(job.layers);
    CPictureExtents extents(layers);
    CFeatureTally unused;
    QString problem = source.Read(extents, unused);
    if (!problem.isEmpty()) {
        return problem;
    }
    const SPlanBox box = extents.Box();
    const QSize size =
        job.width > 0 ? QSize(job.width, job.height) : CPictureView::SuitableSize(box);
    CPictureDevice device;
    problem = device.Begin(job, size);
    if (!problem.isEmpty()) {
        return problem;
    }
    const CPictureView view(box, size);
    CFeatureTally tally;
    const SPictureStyle style = StyleFor(job, extents.Letters());
    CPictureSink sink(device.Painter(), view, style, layers, tally);
    problem = source.Read(sink, tally);
    if (!problem.isEmpty()) {
        return problem;
    }
    if (sink.IsOverfull()) {
        return QStringLiteral(
            "an SVG picture of it would be too large; .png and .pdf have no limit");
    }
    AddRemarks(sink, layers, tally);
    if (style.keepsText && job.format == EPictureFormat::Svg) {
        tally.Remark(QStringLiteral(
            "There are too many letters to draw: texts look as the fonts of the viewer do"));
    }
    report.log =
        QStringLiteral("%1: %2 x %3 pixels").arg(job.name).arg(size.width()).arg(size.height());
    tally.FillReport(report);
    return device.Finish();
}

} // namespace velorx
