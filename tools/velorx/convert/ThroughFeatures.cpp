// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/Conversion.h"
#include "tools/velorx/features/FeatureFormats.h"
#include "tools/velorx/features/FeatureTally.h"

namespace velorx {

QString ConvertThroughFeatures(std::string_view from, std::string_view to,
                               const SConversionJob& job, CConversionReport& report)
{
    CFeatureTally tally;
    const auto source = MakeFeatureSource(from, job.source, {job.options.chord, job.progress});
    const auto target = MakeFeatureTarget(to,
                                          {job.target, job.targetName, job.options.drawingVersion,
                                           job.options.precision, job.options.scale},
                                          tally);
    if (source == nullptr || target == nullptr) {
        return QStringLiteral("there is no way from this format to that one");
    }
    QString problem = source->Read(*target, tally);
    if (problem.isEmpty()) {
        problem = target->Finish();
    }
    report.log = target->Log();
    tally.FillReport(report);
    return problem;
}

} // namespace velorx
