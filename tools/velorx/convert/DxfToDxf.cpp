// SPDX-License-Identifier: MIT
#include "VelorExchange/DXF.h"
#include "tools/velorx/convert/Conversion.h"
#include "tools/velorx/convert/DxfReplay.h"
#include "tools/velorx/formats/DxfContent.h"
#include "tools/velorx/formats/DxfMender.h"
#include "tools/velorx/formats/DxfSurvey.h"
#include "tools/velorx/formats/DxfTally.h"
#include "VelorExchange/foundation/ExportLog.h"

#include <memory>

namespace velorx {

using namespace VelorExchange::dxf;

// Two passes: the first for what the reader leaves out, the second through the library, over a copy where it
// would take something for what it is not.
QString ConvertDxfToDxf(const SConversionJob& job, CConversionReport& report)
{
    const QString fault = WhyNoDrawing(job.source);
    if (!fault.isEmpty()) {
        return fault;
    }
    CDxfTally tally;
    CDxfSurvey survey(tally);
    if (!survey.Read(job.source)) {
        return QStringLiteral("it cannot be opened");
    }
    QTemporaryFile mended;
    const QString source = survey.Mendings().AreNeeded() ? Mend(job.source, mended) : job.source;
    if (source.isEmpty()) {
        return QStringLiteral("a temporary copy of it cannot be written");
    }
    VelorExchange::CExportLog log;
    log.SetOutputFile(job.targetName);
    const std::unique_ptr<IDXFWriter, void (*)(IDXFWriter*)> writer(CreateDXFWriter(nullptr),
                                                                    DeleteDXFWriter);
    writer->Init(job.options.drawingVersion, &log);
    writer->SetPrecision(job.options.precision);
    CDxfReplay replay(*writer, job.options.drawingVersion, survey, tally, job.progress);
    if (!Read(source, &replay)) {
        return QStringLiteral("the drawing ends inside a block");
    }
    replay.Finish();
    tally.EndReading();
    writer->Rewrite(job.target);
    log.GetText(report.log);
    tally.FillReport(report);
    if (!HasEndMark(job.source)) {
        report.remarks.push_back(QLatin1String(kNoEndMark));
    }
    return {};
}

} // namespace velorx
