// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfTally.h"

#include <QStringList>

namespace velorx {

namespace {

constexpr std::size_t kMostUnread = 1000;
constexpr char kOthers[] = "others";

// "ARC", or "LWPOLYLINE 1, POLYLINE 2" for a kind that becomes several.
QString WrittenAs(const std::map<std::string, qint64>& written)
{
    QStringList names;
    for (const auto& [name, count] : written) {
        const QString as = QString::fromStdString(name);
        names.append(written.size() == 1 ? as : as + QLatin1Char(' ') + QString::number(count));
    }
    return names.join(QStringLiteral(", "));
}

qint64 Sum(const std::map<std::string, qint64>& written)
{
    qint64 sum = 0;
    for (const auto& entry : written) {
        sum += entry.second;
    }
    return sum;
}

} // namespace

void CDxfTally::SLoss::Add(const QString& layer, qint64 more)
{
    count += more;
    if (!layer.isEmpty()) {
        layers.try_emplace(layer.toCaseFolded(), layer, 0).first->second.second += more;
    }
}

void CDxfTally::Lose(EDxfLoss loss, const QString& layer, qint64 count)
{
    if (count > 0) {
        losses[static_cast<std::size_t>(loss)].Add(layer, count);
    }
}

void CDxfTally::Unread(const std::string& what, const QString& layer)
{
    const bool hasPlace = unread.size() < kMostUnread || unread.count(what) != 0;
    unread[hasPlace ? what : kOthers].Add(layer, 1);
}

void CDxfTally::AddTo(CConversionReport& report, const QString& what, const SLoss& loss)
{
    SConversionLoss row = {what, loss.count, {}};
    for (const auto& entry : loss.layers) {
        row.layers.push_back(entry.second);
    }
    report.losses.push_back(row);
}

// An arc whose angles are equal comes as a circle, so that the two are one here.
qint64 CDxfTally::Missing(std::size_t kind) const
{
    const auto missing = [this](std::size_t k) { return expected[k] - inDrawing[k] - inBlocks[k]; };
    if (!hasEnded || kind == kCircle) {
        return 0;
    }
    return missing(kind) + (kind == kArc ? missing(kCircle) : 0);
}

void CDxfTally::AddMissing(CConversionReport& report) const
{
    for (std::size_t i = 0; i < kDxfKinds; ++i) {
        if (Missing(i) > 0 && i != kImage) {
            report.losses.push_back(
                {QLatin1String(EntityName(i)) + QStringLiteral(", lost in reading"),
                 Missing(i),
                 {}});
        }
    }
}

void CDxfTally::FillReport(CConversionReport& report) const
{
    for (std::size_t i = 0; i < kDxfKinds; ++i) {
        if (inDrawing[i] + inBlocks[i] != 0) {
            report.kinds.push_back({QLatin1String(EntityName(i)), WrittenAs(written[i]),
                                    inDrawing[i], inBlocks[i], Sum(written[i])});
        }
    }
    for (const auto& [what, loss] : unread) {
        AddTo(report, QString::fromUtf8(what.c_str()) + QStringLiteral(", not read: left out"),
              loss);
    }
    AddMissing(report);
    for (std::size_t i = 0; i < losses.size(); ++i) {
        SLoss loss = losses[i];
        if (i == static_cast<std::size_t>(EDxfLoss::UndefinedImages)) {
            loss.count = Missing(kImage); // the reader delivers an image with its file
        }
        if (loss.count > 0) {
            AddTo(report, QLatin1String(LossText(static_cast<EDxfLoss>(i))), loss);
        }
    }
}

} // namespace velorx
