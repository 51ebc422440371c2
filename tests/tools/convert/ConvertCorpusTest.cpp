// SPDX-License-Identifier: MIT
// Real drawings of many programs, converted and read back. What the result has more or fewer of than its
// source must stand in the tables here and in the report, to the last one. The drawings are not part of
// the tree.
#include "tests/support/DxfRecorder.h"
#include "tests/support/LocaleCodec.h"
#include "tests/support/TextFile.h"
#include "tests/tools/convert/DxfConversion.h"
#include "tools/velorx/formats/DxfKinds.h"
#include "tools/velorx/formats/DxfLosses.h"
#include "tools/velorx/formats/DxfMender.h"

#include <boost/variant2/variant.hpp>
#include <gtest/gtest.h>

#include <QBuffer>

#include <QStringList>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace velorx::test {

namespace {

using namespace VelorExchange::dxf;

constexpr int kParts = 8;

// Drawings in the binary form, and one that begins with random bytes.
constexpr const char* kNoTextDrawings[] = {
    "BINARY_wipeout.dxf", "bin_dxf_r12.dxf",
    "bin_dxf_r13.dxf",    "clusterfuzz-testcase-minimized-shape_fuzzer-6126814756995072.dxf",
    "diamond-bin.dxf",    "sample_binary.dxf"};

/// A kind that the result calls otherwise, and what the report says of it.
struct SOtherKind
{
    const char* source;
    const char* result;
    EDxfLoss loss;
};

constexpr SOtherKind kOtherKinds[] = {
    {"CIRCLE", "ARC", EDxfLoss::Arcs},
    {"ELLIPSE", "SPLINE", EDxfLoss::Ellipses},
    {"RAY", "XLINE", EDxfLoss::Rays},
    {"SOLID", "HATCH", EDxfLoss::Solids},
    {"POLYLINE", "LWPOLYLINE", EDxfLoss::Polylines2D},
};

// What the report says of elements that are not in the result at all.
constexpr EDxfLoss kLeftOut[] = {EDxfLoss::LayoutBlocks, EDxfLoss::NamelessBlocks,
                                 EDxfLoss::RepeatedBlocks, EDxfLoss::EmptyTexts, EDxfLoss::Refused};

using CCounts = std::map<std::string, qint64>;

/// Counts what the library delivers, by the names of entities.
class CCounter final : public IDXFReader
{
public:
    bool OnPolyline(const CPolylineDXF& /*record*/) override { return Count(kPolyline); }
    bool OnMLine(const CMLineDXF& /*record*/) override { return Count(kMLine); }
    bool OnEllipse(const CEllipseDXF& /*record*/) override { return Count(kEllipse); }
    bool OnLWPolyline(const CLWPolylineDXF& /*record*/) override { return Count(kLWPolyline); }
    bool OnSpline(const CSplineDXF& /*record*/) override { return Count(kSpline); }
    bool OnSolid(const CSolidDXF& /*record*/) override { return Count(kSolid); }
    bool OnLine(const CLineDXF& /*record*/) override { return Count(kLine); }
    bool On3DFace(const C3DFaceDXF& /*record*/) override { return Count(k3DFace); }
    bool OnXLine(const CXLineDXF& /*record*/) override { return Count(kXLine); }
    bool OnRay(const CRayDXF& /*record*/) override { return Count(kRay); }
    bool OnArc(const CArcDXF& record) override { return Count(KindOf(record)); }
    bool OnImage(const CImageDXF& /*record*/) override { return Count(kImage); }
    bool OnHatch(const CHatchDXF& /*record*/) override { return Count(kHatch); }
    bool OnMText(const CMTextDXF& /*record*/) override { return Count(kMText); }
    bool OnText(const CTextDXF& /*record*/) override { return Count(kText); }
    bool OnPoint(const CPointDXF& /*record*/) override { return Count(kPoint); }
    bool OnInsert(const CInsertDXF& record) override
    {
        attributes += static_cast<qint64>(record.attributes.size());
        return Count(kInsert);
    }
    bool OnBlock(const CBlockDXF& record) override
    {
        for (const CEntityVariantDXF& entity : record.entities) {
            ++inBlocks[EntityName(KindOf(entity))];
            if (const auto* insert = boost::variant2::get_if<CInsertDXF>(&entity)) {
                attributes += static_cast<qint64>(insert->attributes.size());
            }
        }
        const bool isLayout =
            record.name.startsWith(QLatin1String("*Paper_Space"), Qt::CaseInsensitive)
            || record.name.startsWith(QLatin1String("*Model_Space"), Qt::CaseInsensitive)
            || record.name.startsWith(QLatin1Char('$'));
        if (!isLayout && !record.name.isEmpty()) {
            blocks.insert(record.name.toCaseFolded());
        }
        return true;
    }

    CCounts inDrawing;
    CCounts inBlocks;
    qint64 attributes = 0;
    QSet<QString> blocks; ///< But for those of layouts.

private:
    bool Count(EDxfKind kind)
    {
        ++inDrawing[EntityName(kind)];
        return true;
    }
};

// The drawing as the conversion has the library read it.
QByteArray Mended(const QByteArray& drawing)
{
    QBuffer source;
    QBuffer target;
    source.setData(drawing);
    EXPECT_TRUE(source.open(QIODevice::ReadOnly) && target.open(QIODevice::WriteOnly));
    EXPECT_TRUE(CDxfMender(source, target).Run());
    return target.data();
}

CCounter Counted(const QByteArray& drawing)
{
    const VelorExchange::test::CLocaleCodec codec("windows-1251");
    const VelorExchange::test::CTextFile file(drawing);
    CCounter counter;
    EXPECT_TRUE(Read(file.Path(), &counter));
    return counter;
}

qint64 LossOf(const CConversionReport& report, EDxfLoss loss)
{
    for (const SConversionLoss& row : report.losses) {
        if (row.what == QLatin1String(LossText(loss))) {
            return row.count;
        }
    }
    return 0;
}

// What became of a kind, by the names in the result.
CCounts WrittenAs(const SConvertedKind& kind)
{
    CCounts written;
    for (const QString& part : kind.writtenAs.split(QStringLiteral(", "), Qt::SkipEmptyParts)) {
        const QStringList words = part.split(QLatin1Char(' '));
        written[words[0].toStdString()] = words.size() > 1 ? words[1].toLongLong() : kind.written;
    }
    return written;
}

qint64 SumOf(const CCounts& counts)
{
    qint64 sum = 0;
    for (const auto& entry : counts) {
        sum += entry.second;
    }
    return sum;
}

CCounts Joined(const CCounter& counter)
{
    CCounts all = counter.inDrawing;
    for (const auto& [kind, count] : counter.inBlocks) {
        all[kind] += count;
    }
    return all;
}

// The report tells what the source has.
void CompareSource(const CConversionReport& report, const CCounter& source)
{
    CCounts inDrawing;
    CCounts inBlocks;
    for (const SConvertedKind& kind : report.kinds) {
        if (kind.inDrawing != 0) {
            inDrawing[kind.name.toStdString()] = kind.inDrawing;
        }
        if (kind.inBlocks != 0) {
            inBlocks[kind.name.toStdString()] = kind.inBlocks;
        }
    }
    EXPECT_EQ(inDrawing, source.inDrawing);
    EXPECT_EQ(inBlocks, source.inBlocks);
}

// The report tells what the result has, and each kind is written as itself or as the table says.
void CompareResult(const CConversionReport& report, const CCounter& result)
{
    CCounts written;
    std::map<EDxfLoss, qint64> changed;
    for (const SConvertedKind& kind : report.kinds) {
        for (const auto& entry : WrittenAs(kind)) {
            const std::string& name = entry.first; // a lambda cannot refer to a part of a binding
            written[name] += entry.second;
            if (name == kind.name.toStdString()) {
                continue;
            }
            const auto other = std::find_if(
                std::begin(kOtherKinds), std::end(kOtherKinds), [&](const SOtherKind& row) {
                    return kind.name == QLatin1String(row.source) && name == row.result;
                });
            ASSERT_NE(other, std::end(kOtherKinds)) << kind.name.toStdString() << " as " << name;
            changed[other->loss] += entry.second;
        }
    }
    EXPECT_EQ(written, Joined(result));
    for (const SOtherKind& row : kOtherKinds) {
        EXPECT_EQ(LossOf(report, row.loss), changed[row.loss]) << row.source;
    }
}

// What was read and not written is told, one by one.
void CompareLosses(const CConversionReport& report, const CCounter& source, const CCounter& result)
{
    qint64 missing = 0;
    for (const SConvertedKind& kind : report.kinds) {
        missing += kind.inDrawing + kind.inBlocks - kind.written;
    }
    qint64 told = 0;
    for (const EDxfLoss loss : kLeftOut) {
        told += LossOf(report, loss);
    }
    EXPECT_EQ(missing, told);
    EXPECT_EQ(SumOf(Joined(source)) - SumOf(Joined(result)), told);
    if (told == 0) {
        EXPECT_EQ(result.attributes, source.attributes);
    }
    EXPECT_EQ(result.blocks.size(),
              source.blocks.size() + LossOf(report, EDxfLoss::UndefinedBlocks));
}

std::filesystem::path CorpusFolder()
{
    const char* folder = std::getenv("VELOREXCHANGE_CORPUS");
    return folder != nullptr ? folder : VELOREXCHANGE_CORPUS;
}

std::vector<std::filesystem::path> DrawingsOf(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> drawings;
    if (std::filesystem::exists(folder)) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (entry.is_regular_file() && entry.path().extension() == ".dxf") {
                drawings.push_back(entry.path());
            }
        }
    }
    std::sort(drawings.begin(), drawings.end());
    return drawings;
}

QByteArray ContentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return QByteArray::fromStdString(content.str());
}

bool IsTextDrawing(const std::filesystem::path& path)
{
    return std::none_of(std::begin(kNoTextDrawings), std::end(kNoTextDrawings),
                        [&path](const char* name) { return path.filename() == name; });
}

class ConvertCorpus : public testing::TestWithParam<int>
{
};

} // namespace

TEST_P(ConvertCorpus, ReportTellsEachDifferenceBetweenSourceAndResult)
{
    const std::vector<std::filesystem::path> drawings = DrawingsOf(CorpusFolder() / "dxf");
    if (drawings.empty()) {
        GTEST_SKIP() << "no corpus at " << CorpusFolder();
    }
    EXPECT_GT(drawings.size(), 100U);
    for (std::size_t i = static_cast<std::size_t>(GetParam()); i < drawings.size(); i += kParts) {
        SCOPED_TRACE(drawings[i]);
        const QByteArray drawing = ContentOf(drawings[i]);
        const int version = i / kParts % 2 == 0 ? 1018 : 1015;
        const SConverted converted = Converted(drawing, version);
        if (!IsTextDrawing(drawings[i])) {
            EXPECT_NE(converted.problem, QString());
            continue;
        }
        ASSERT_EQ(converted.problem, QString());
        const CCounter source = Counted(Mended(drawing));
        const CCounter result = Counted(converted.drawing);
        CompareSource(converted.report, source);
        CompareResult(converted.report, result);
        CompareLosses(converted.report, source, result);
    }
}

INSTANTIATE_TEST_SUITE_P(Parts, ConvertCorpus, testing::Range(0, kParts));

} // namespace velorx::test
