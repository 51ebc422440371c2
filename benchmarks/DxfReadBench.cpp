// SPDX-License-Identifier: MIT
// Micro-benchmarks of the layers of drawing reading: lines, groups, numbers, and the whole.
#include "SurveyDrawing.h"

#include "VelorExchange/DXF.h"
#include "VelorExchange/dxf/read/LineReader_p.h"
#include "VelorExchange/dxf/read/TagReader_p.h"
#include "VelorExchange/foundation/NumberParser_p.h"

#include <QBuffer>
#include <QString>
#include <QTemporaryFile>

#include <benchmark/benchmark.h>

#include <cstdio>

using namespace VelorExchange;

namespace {

const QByteArray& Drawing()
{
    static const QByteArray bytes = [] {
        std::FILE* file = std::tmpfile();
        bench::CSurveyOptions options;
        options.bytes = 4U << 20U;
        bench::WriteSurveyDrawing(file, options);
        QFile reader;
        std::fflush(file);
        std::rewind(file);
        reader.open(file, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
        return reader.readAll();
    }();
    return bytes;
}

void Lines(benchmark::State& state)
{
    for (auto _ : state) {
        QBuffer buffer;
        buffer.setData(Drawing());
        buffer.open(QIODevice::ReadOnly);
        dxf::CLineReader lines(buffer);
        long count = 0;
        while (!lines.AtEnd()) {
            lines.Keep();
            benchmark::DoNotOptimize(lines.NextLine());
            ++count;
        }
        benchmark::DoNotOptimize(count);
    }
    state.SetBytesProcessed(state.iterations() * Drawing().size());
}

void LinesByQt(benchmark::State& state)
{
    for (auto _ : state) {
        QBuffer buffer;
        buffer.setData(Drawing());
        buffer.open(QIODevice::ReadOnly);
        char line[1000];
        while (!buffer.atEnd()) {
            benchmark::DoNotOptimize(buffer.readLine(line, sizeof line));
        }
    }
    state.SetBytesProcessed(state.iterations() * Drawing().size());
}

void Groups(benchmark::State& state)
{
    for (auto _ : state) {
        QBuffer buffer;
        buffer.setData(Drawing());
        buffer.open(QIODevice::ReadOnly);
        dxf::CTagReader tags(buffer);
        while (!tags.AtEnd()) {
            benchmark::DoNotOptimize(tags.ReadLoneTag());
        }
    }
    state.SetBytesProcessed(state.iterations() * Drawing().size());
}

constexpr char kNumber[32] = "512345.678";
constexpr std::size_t kNumberSize = 10;

void Number(benchmark::State& state)
{
    for (auto _ : state) {
        double value = 0;
        benchmark::DoNotOptimize(ParsePaddedDouble(kNumber, kNumberSize, value));
        benchmark::DoNotOptimize(value);
    }
}

void NumberByQt(benchmark::State& state)
{
    const QString text = QString::fromLatin1(kNumber);
    for (auto _ : state) {
        benchmark::DoNotOptimize(text.toDouble());
    }
}

struct CHost final : dxf::IDXFReader
{
};

void Whole(benchmark::State& state)
{
    QTemporaryFile file;
    file.open();
    file.write(Drawing());
    file.flush();
    CHost host;
    for (auto _ : state) {
        benchmark::DoNotOptimize(dxf::Read(file.fileName(), &host));
    }
    state.SetBytesProcessed(state.iterations() * Drawing().size());
}

} // namespace

BENCHMARK(Lines);
BENCHMARK(LinesByQt);
BENCHMARK(Groups);
BENCHMARK(Number);
BENCHMARK(NumberByQt);
BENCHMARK(Whole);
BENCHMARK_MAIN();
