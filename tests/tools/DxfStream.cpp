// SPDX-License-Identifier: MIT
#include "tests/tools/DxfStream.h"

#include "tests/support/TextFile.h"
#include "tools/velorx/features/DxfFeatureSource.h"

#include <QStringList>

namespace velorx::test {

using VelorExchange::CPoint3D;

namespace {

QByteArray Groups(const char* groups)
{
    QByteArray text;
    for (const QString& group : QString::fromUtf8(groups).split(QStringLiteral(", "))) {
        const int blank = group.indexOf(' ');
        text += group.left(blank).toUtf8() + '\n'
            + (blank < 0 ? QByteArray() : group.mid(blank + 1).toUtf8()) + '\n';
    }
    return text;
}

QByteArray Section(const char* name, const QByteArray& content)
{
    return QByteArray("0\nSECTION\n2\n") + name + '\n' + content + "0\nENDSEC\n";
}

} // namespace

CDxfStream& CDxfStream::Table(const char* groups)
{
    tables += Groups(groups);
    return *this;
}

CDxfStream& CDxfStream::Block(const char* name, const char* groups, double x, double y)
{
    blocks += QByteArray("0\nBLOCK\n2\n") + name + "\n70\n0\n10\n" + QByteArray::number(x)
        + "\n20\n" + QByteArray::number(y) + "\n30\n0\n" + (*groups != 0 ? Groups(groups) : "")
        + "0\nENDBLK\n";
    return *this;
}

CDxfStream& CDxfStream::Entities(const char* groups)
{
    entities += Groups(groups);
    return *this;
}

CDxfStream& CDxfStream::Objects(const char* groups)
{
    objects += Groups(groups);
    return *this;
}

CFeatureRecorder& CDxfStream::Read(double chord)
{
    const VelorExchange::test::CTextFile file(
        Section("HEADER", "9\n$ACADVER\n1\nAC1021\n") + Section("TABLES", tables)
        + Section("BLOCKS", blocks) + Section("ENTITIES", entities) + Section("OBJECTS", objects)
        + "0\nEOF\n");
    CFeatureTally tally;
    SReadingOptions options;
    options.chord = chord;
    EXPECT_EQ(CDxfFeatureSource(file.Path(), options).Read(recorder, tally), QString());
    tally.FillReport(report);
    return recorder;
}

std::string CDxfStream::Lost(const QString& what) const
{
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

std::string CDxfStream::Met(const char* kind) const
{
    qint64 inDrawing = 0;
    qint64 inBlocks = 0;
    for (const SConvertedKind& row : report.kinds) {
        if (row.name == QLatin1String(kind)) {
            inDrawing += row.inDrawing;
            inBlocks += row.inBlocks;
        }
    }
    return std::to_string(inDrawing) + '+' + std::to_string(inBlocks);
}

std::string CDxfStream::Losses() const
{
    std::string text;
    for (const SConversionLoss& loss : report.losses) {
        text += std::to_string(loss.count) + ' ' + loss.what.toStdString() + '\n';
    }
    return text;
}

std::string NumberText(double number)
{
    QString text = QString::number(number, 'f', 6);
    while (text.endsWith('0')) {
        text.chop(1);
    }
    if (text.endsWith('.')) {
        text.chop(1);
    }
    return text == "-0" ? "0" : text.toStdString();
}

std::string PointsOf(const CFeatureLine& line)
{
    std::string text;
    for (const CPoint3D& p : line) {
        text += (text.empty() ? "(" : " (") + NumberText(p.x) + ' ' + NumberText(p.y)
            + (NumberText(p.z) != "0" ? ' ' + NumberText(p.z) : "") + ')';
    }
    return text;
}

} // namespace velorx::test
