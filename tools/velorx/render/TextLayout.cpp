// SPDX-License-Identifier: MIT
#include "tools/velorx/render/TextLayout.h"

#include "tools/velorx/render/Typeface.h"

#include <QFontMetricsF>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace velorx {

namespace {

constexpr int kFontPixels = 100;
constexpr double kLinePitch = 5.0 / 3.0;
constexpr double kDescent = 1.0 / 3.0;
constexpr double kDegree = M_PI / 180.0;
constexpr int kLongestText = 20'000; // of a hostile file; more is not readable in a picture

/// A usable value, or `otherwise`.
double Within(double value, double least, double greatest, double otherwise)
{
    return std::abs(value) >= least && std::abs(value) <= greatest ? value : otherwise;
}

QFont FontFor(const STextFeature& text)
{
    QFont font(PickTypeface(text.font));
    font.setPixelSize(kFontPixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferOutline);
    font.setKerning(false);
    font.setBold(text.isBold);
    font.setItalic(text.isItalic);
    return font;
}

// Without what has no glyph: control characters other than the line feed.
QString Readable(const QString& text)
{
    QString result = text.left(kLongestText);
    for (QChar& c : result) {
        if (c != QLatin1Char('\n') && (c.category() == QChar::Other_Control)) {
            c = QLatin1Char(' ');
        }
    }
    return result;
}

} // namespace

CTextLayout::CTextLayout(const STextFeature& text)
    : font(FontFor(text)), widthFactor(Within(text.widthFactor, 0.01, 100.0, 1.0)),
      slant(std::tan(Within(text.slant, 0.0, 85.0 * kDegree, 0.0))), height(text.height),
      rotation(text.rotation), position(text.position)
{
    const bool hasPlace = IsDrawable(position.x) && IsDrawable(position.y) && IsDrawable(rotation);
    if (!hasPlace || !IsDrawable(height) || !(height > 0)) {
        return;
    }
    const double capitals = QFontMetricsF(font).capHeight();
    unit = 1.0 / (capitals > 0 ? capitals : kFontPixels * 0.7);
    Cut(text);
    Place(text);
}

double CTextLayout::WidthOf(const QString& text) const
{
    return QFontMetricsF(font).horizontalAdvance(text) * unit * std::abs(widthFactor);
}

// Breaks lines at spaces where they are longer than the column.
void CTextLayout::Cut(const STextFeature& text)
{
    const double column = text.columnWidth / height;
    const bool hasColumn = IsDrawable(column) && column > 0;
    for (const QString& paragraph : Readable(text.text).split(QLatin1Char('\n'))) {
        QString line;
        double width = 0.0;
        const QStringList words =
            hasColumn ? paragraph.split(QLatin1Char(' ')) : QStringList(paragraph);
        for (const QString& word : words) {
            const bool isFirst = line.isEmpty();
            const double more = WidthOf(isFirst ? word : QLatin1Char(' ') + word);
            if (!isFirst && width + more > column) {
                lines.push_back({line, 0.0, 0.0, width});
                line = word;
                width = WidthOf(word);
                continue;
            }
            line += isFirst ? word : QLatin1Char(' ') + word;
            width += more;
        }
        lines.push_back({line, 0.0, 0.0, width});
    }
    const bool isVisible = std::any_of(lines.begin(), lines.end(), [](const SLine& line) {
        return !line.text.trimmed().isEmpty();
    });
    if (!isVisible) {
        lines.clear();
    }
}

void CTextLayout::Place(const STextFeature& text)
{
    const double below = kLinePitch * (static_cast<double>(lines.size()) - 1);
    double baseline = 0.0;
    switch (text.vertical) {
    case EFeatureVertical::Baseline:
        break;
    case EFeatureVertical::Bottom:
        baseline = -kDescent - below;
        break;
    case EFeatureVertical::Middle:
        baseline = (1.0 - below) / 2;
        break;
    case EFeatureVertical::Top:
        baseline = 1.0;
        break;
    }
    const double part = text.align == EFeatureAlign::Left ? 0.0
        : text.align == EFeatureAlign::Centre             ? 0.5
                                                          : 1.0;
    for (SLine& line : lines) {
        line.left = -part * line.width;
        line.baseline = baseline;
        baseline += kLinePitch;
    }
}

QTransform CTextLayout::Transform(const SLine& line, const CPictureView& view) const
{
    const QPointF place = view.Map(position.x, position.y);
    const double pixels = view.Pixels(height);
    QTransform transform;
    transform.translate(place.x(), place.y());
    transform.rotate(-rotation / kDegree);
    transform.scale(pixels, pixels);
    // A mirrored text takes up the same place.
    transform.translate(widthFactor < 0 ? line.left + line.width : line.left, line.baseline);
    transform.shear(-slant, 0.0);
    transform.scale(unit * widthFactor, unit);
    return transform;
}

QRectF CTextLayout::Underline(const SLine& line) const
{
    constexpr double kBelow = 0.15;
    constexpr double kThickness = 0.08;
    return {0.0, kBelow / unit, line.width / (unit * std::abs(widthFactor)), kThickness / unit};
}

SPlanBox CTextLayout::Box() const
{
    SPlanBox box;
    const double cosine = std::cos(rotation);
    const double sine = std::sin(rotation);
    for (const SLine& line : lines) {
        for (const double x : {line.left, line.left + line.width}) {
            for (const double up : {1.0 - line.baseline, -kDescent - line.baseline}) {
                const double across = x + slant * (up + line.baseline);
                box.Add(position.x + height * (across * cosine - up * sine),
                        position.y + height * (across * sine + up * cosine));
            }
        }
    }
    return box;
}

} // namespace velorx
