// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/Conversion.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/SxfOutput.h"
#include "tools/velorx/formats/SxfCodes.h"
#include "tools/velorx/formats/SxfReading.h"

#include <algorithm>
#include <limits>

namespace velorx {

using namespace VelorExchange::pnr;

namespace {

bool IsLink(const PnrSemantic& semantic)
{
    return semantic.code == kSxfLinkToTextCode || semantic.code == kSxfLinkToObjectCode;
}

/// Hands a map on from the reader to the writer, one object at a time.
class CSxfReplay final : public ISxfHost
{
public:
    /// Both outlive this object.
    CSxfReplay(CSxfOutput& target, CFeatureTally& counts) : output(target), tally(counts) { }

    void Take(CLineObject& line) override { HandOver(line, kSxfLine); }
    void Take(CSquareObject& area) override { HandOver(area, kSxfArea); }
    void Take(CPointObject& point) override { HandOver(point, kSxfPoint); }
    void Take(CTextObject& text) override { HandOver(text, kSxfText); }

    void TakeFrame() override
    {
        tally.Read(kSxfFrame);
        tally.Lose(QStringLiteral("frames around everything are made anew"));
    }

private:
    template <class Object>
    void HandOver(Object& object, const char* kind)
    {
        tally.Read(kind);
        MoveLinks(object);
        ++met;
        if (const char* as = output.Write(object)) {
            tally.Wrote(kind, as);
        }
    }

    // Links tell numbers of objects, which have others in the target where some ahead of them became none
    // or several.
    void MoveLinks(CBaseObject& object)
    {
        const qint64 shift = output.Written() - met;
        if (shift == 0) {
            return;
        }
        for (PnrSemantic& semantic : object.semantics) {
            if (IsLink(semantic)) {
                semantic.value = static_cast<int>(semantic.value.toInt() + shift);
                semantic.dataType = sizeof(qint32);
                semantic.scale = 0;
                tally.Lose(QStringLiteral("links between objects and texts have other numbers"),
                           object.layer);
            }
        }
    }

    CSxfOutput& output;
    CFeatureTally& tally;
    qint64 met = 0;
};

void RemarkOnHeader(const SSxfHeader& header, CFeatureTally& tally)
{
    if (!header.sheet.isEmpty()) {
        tally.Remark(
            QStringLiteral("The number of the sheet, %1, has no place beside the name of the map.")
                .arg(header.sheet));
    }
    if (header.originX != 0.0 || header.originY != 0.0) {
        tally.Remark(QStringLiteral("Coordinates no longer count from the corner of the sheet."));
    }
}

template <bool isText>
QString Convert(const SConversionJob& job, CConversionReport& report)
{
    CFeatureTally tally;
    const SSxfHeader header = ReadSxfHeader(job.source);
    CSxfOutput output({job.target, job.targetName, isText, job.options.precision}, tally);
    constexpr qint64 kLargest = std::numeric_limits<int>::max();
    const auto scale = static_cast<int>(std::clamp(header.scale, qint64{0}, kLargest));
    output.Begin(header.name, job.options.scale > 0 ? job.options.scale : scale, header.isUserMap);
    RemarkOnHeader(header, tally);
    CSxfReplay replay(output, tally);
    QString problem = ReadSxf(job.source, header, job.progress, replay);
    if (problem.isEmpty()) {
        problem = output.Finish();
    }
    report.log = output.Log();
    tally.FillReport(report);
    return problem;
}

} // namespace

QString ConvertSxfToSxf(const SConversionJob& job, CConversionReport& report)
{
    return Convert<false>(job, report);
}

QString ConvertSxfToSxfText(const SConversionJob& job, CConversionReport& report)
{
    return Convert<true>(job, report);
}

} // namespace velorx
