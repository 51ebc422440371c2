// SPDX-License-Identifier: MIT
#include "tests/tools/DxfWritten.h"

#include "tests/support/DxfChecker.h"
#include "tests/support/DxfTags.h"
#include "tools/velorx/features/DxfFeatureSource.h"
#include "tools/velorx/formats/DxfLosses.h"

#include <QFile>
#include <QStringList>
#include <QTextCodec>

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

std::string LossesOf(const CFeatureTally& tally)
{
    CConversionReport report;
    tally.FillReport(report);
    std::string text;
    for (const SConversionLoss& loss : report.losses) {
        if (loss.what != LossText(EDxfLoss::OtherTables)
            && loss.what != LossText(EDxfLoss::OtherObjects)) {
            text += std::to_string(loss.count) + ' ' + loss.what.toStdString() + '\n';
        }
    }
    return text;
}

} // namespace

CDxfWritten::CDxfWritten(int version) : codecBefore(QTextCodec::codecForLocale())
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    STargetOptions options;
    options.path = folder.filePath("drawing.dxf");
    options.name = QStringLiteral("drawing.dxf");
    options.drawingVersion = version;
    target = std::make_unique<CDxfFeatureTarget>(options, tally);
}

CDxfWritten::~CDxfWritten()
{
    QTextCodec::setCodecForLocale(codecBefore);
}

QByteArray CDxfWritten::Bytes()
{
    if (bytes.isEmpty()) {
        EXPECT_EQ(target->Finish(), QString());
        QFile file(folder.filePath("drawing.dxf"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        bytes = file.readAll();
        for (const std::string& problem : VelorExchange::test::ProblemsOf(bytes)) {
            ADD_FAILURE() << problem;
        }
    }
    return bytes;
}

std::string CDxfWritten::Entities()
{
    using namespace VelorExchange::test;
    return AsText(SectionOf(ParseTags(Bytes()), "ENTITIES"));
}

CFeatureRecorder& CDxfWritten::ReadBack()
{
    ReadBackTo(recorder);
    return recorder;
}

void CDxfWritten::ReadBackTo(IFeatureSink& sink)
{
    Bytes();
    CDxfFeatureSource source(folder.filePath("drawing.dxf"), SReadingOptions());
    EXPECT_EQ(source.Read(sink, tallyOfReading), QString());
}

std::string CDxfWritten::Lost(const char* what) const
{
    CConversionReport report;
    tally.FillReport(report);
    for (const SConversionLoss& loss : report.losses) {
        if (loss.what == what) {
            QStringList layers;
            for (const auto& [layer, count] : loss.layers) {
                layers.append(layer + ' ' + QString::number(count));
            }
            return (QString::number(loss.count) + ": " + layers.join(", ")).toStdString();
        }
    }
    return {};
}

std::string CDxfWritten::Losses() const
{
    return LossesOf(tally);
}

std::string CDxfWritten::LossesOfReading() const
{
    return LossesOf(tallyOfReading);
}

} // namespace velorx::test
