// SPDX-License-Identifier: MIT
#include "tests/tools/render/Canvas.h"

#include <cmath>

namespace velorx::test {

namespace {

constexpr int kSize = 100;
constexpr int kMargin = 2;
constexpr int kPlan = kSize - 2 * kMargin;

SPlanBox Plan()
{
    SPlanBox box;
    box.Add(0, 0);
    box.Add(kPlan, kPlan);
    return box;
}

QImage Blank(const SPictureStyle& style)
{
    QImage blank(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    blank.fill(QColor::fromRgba(style.background));
    return blank;
}

} // namespace

CCanvas::CCanvas(const SPictureStyle& style, const QStringList& layers)
    : CCanvas(style, layers, Plan())
{
}

CCanvas::CCanvas(const SPictureStyle& style, const QStringList& layers, const SPlanBox& plan)
    : image(Blank(style)), painter(&image), view(plan, image.size()), choice(layers),
      sink(painter, view, style, choice, tally), paper(QColor::fromRgba(style.background))
{
    painter.setRenderHint(QPainter::Antialiasing);
}

QColor CCanvas::At(double x, double y) const
{
    const QPointF place = view.Map(x, y);
    return image.pixelColor(static_cast<int>(std::floor(place.x())),
                            static_cast<int>(std::floor(place.y())));
}

int CCanvas::CountInk(double left, double bottom, double right, double top) const
{
    int count = 0;
    for (double x = left + 0.5; x < right; x += 1) {
        for (double y = bottom + 0.5; y < top; y += 1) {
            count += IsPaper(x, y) ? 0 : 1;
        }
    }
    return count;
}

SPlanBox CCanvas::Ink() const
{
    SPlanBox box;
    for (int x = -kMargin; x < kPlan + kMargin; ++x) {
        for (int y = -kMargin; y < kPlan + kMargin; ++y) {
            if (!IsPaper(x + 0.5, y + 0.5)) {
                box.Add(x, y);
                box.Add(x + 1, y + 1);
            }
        }
    }
    return box;
}

QStringList CCanvas::Losses() const
{
    CConversionReport report;
    tally.FillReport(report);
    QStringList lines;
    for (const SConversionLoss& loss : report.losses) {
        lines.append(QString::number(loss.count) + QLatin1Char(' ') + loss.what);
    }
    return lines;
}

SLineFeature Line(const CFeatureLine& points)
{
    SLineFeature line;
    line.kind = "LINE";
    line.layer = QStringLiteral("0");
    line.points = points;
    return line;
}

SAreaFeature RedArea(const std::vector<CFeatureLine>& rings)
{
    SAreaFeature area;
    area.kind = "HATCH";
    area.layer = QStringLiteral("0");
    area.rings = rings;
    area.stroke.isVisible = false;
    area.fill.kind = EFeatureFill::Solid;
    area.fill.color = 0x0000FF;
    return area;
}

CFeatureLine Rectangle(double left, double bottom, double right, double top)
{
    return {{left, bottom, 0}, {right, bottom, 0}, {right, top, 0}, {left, top, 0}};
}

STextFeature Text(const char* text, double x, double y)
{
    STextFeature feature;
    feature.kind = "TEXT";
    feature.layer = QStringLiteral("0");
    feature.text = QString::fromUtf8(text);
    feature.position = {x, y, 0};
    feature.height = 20;
    return feature;
}

} // namespace velorx::test
