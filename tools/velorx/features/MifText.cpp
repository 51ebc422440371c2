// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifText.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace velorx {

using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;
using VelorExchange::mif::CTextMIF;

namespace {

constexpr int kBold = 1;
constexpr int kItalic = 2;
constexpr int kUnderlined = 4;
constexpr quint32 kWhite = 0xFFFFFF;
constexpr double kLetterWidth = 0.75; // of a usual letter, in heights of capitals
constexpr double kLetterStep = 1.0 / kMifCapitals; // from one line to the next, likewise

// The reader delivers names without blanks, and these are the ones that people use.
constexpr const char* kTypefaces[] = {
    "Arial Black",         "Arial Cyr",       "Arial Narrow",
    "Arial Unicode MS",    "Book Antiqua",    "Bookman Old Style",
    "Century Gothic",      "Comic Sans MS",   "Courier New",
    "Courier New Cyr",     "Franklin Gothic", "GOST type A",
    "GOST type B",         "Lucida Console",  "Lucida Sans",
    "MS Sans Serif",       "Liberation Sans", "Microsoft Sans Serif",
    "Palatino Linotype",   "Segoe UI",        "Times New Roman",
    "Times New Roman Cyr", "Trebuchet MS",    "DejaVu Sans",
};

QString WithBlanks(const QString& name)
{
    for (const char* typeface : kTypefaces) {
        const QString full = QLatin1String(typeface);
        if (QString(full).remove(QLatin1Char(' ')).compare(name, Qt::CaseInsensitive) == 0) {
            return full;
        }
    }
    return name;
}

QString WithLineFeeds(QString text)
{
    return text.replace(QLatin1String("\\n"), QLatin1String("\n"));
}

void FillLook(const CTextMIF& text, STextFeature& feature)
{
    feature.color = text.font.color;
    feature.font = WithBlanks(text.font.name);
    feature.isBold = (text.font.style & kBold) != 0;
    feature.isItalic = (text.font.style & kItalic) != 0;
    feature.isUnderlined = (text.font.style & kUnderlined) != 0;
}

// The height of a line's box, of a rectangle of `height` that holds `lines`.
double LineHeight(double height, qsizetype lines, double spacing)
{
    const double step = spacing > 0.0 ? spacing : 1.0;
    return height / (1.0 + static_cast<double>(lines - 1) * step);
}

/// Of a text, unturned and with its position in the origin.
struct SBox
{
    double left = 0.0;
    double bottom = 0.0;
    double width = 0.0;
    double height = 0.0;
};

SBox BoxOf(const STextFeature& feature)
{
    const QStringList lines = feature.text.split(QLatin1Char('\n'));
    int longest = 1;
    for (const QString& line : lines) {
        longest = std::max<int>(longest, static_cast<int>(line.size()));
    }
    SBox box;
    box.width = longest * kLetterWidth * feature.height * feature.widthFactor;
    const double step = feature.height * kLetterStep;
    box.height = step * static_cast<double>(lines.size());
    const double parts[] = {0.0, 0.5, 1.0}; // by `EFeatureAlign`
    box.left = -box.width * parts[static_cast<int>(feature.align)];
    switch (feature.vertical) {
    case EFeatureVertical::Baseline: // of the first line
        box.bottom = step - box.height;
        break;
    case EFeatureVertical::Bottom:
        break;
    case EFeatureVertical::Middle:
        box.bottom = -box.height / 2.0;
        break;
    case EFeatureVertical::Top:
        box.bottom = -box.height;
        break;
    }
    return box;
}

qint16 StyleOf(const STextFeature& feature)
{
    return static_cast<qint16>((feature.isBold ? kBold : 0) | (feature.isItalic ? kItalic : 0)
                               | (feature.isUnderlined ? kUnderlined : 0));
}

} // namespace

SMifTextExtras FillFromMifText(const CTextMIF& text, STextFeature& feature)
{
    feature.text = WithLineFeeds(text.text);
    FillLook(text, feature);
    const auto lines = feature.text.count(QLatin1Char('\n')) + 1;
    const double width = std::fabs(text.corner2.x - text.corner1.x);
    const double height = std::fabs(text.corner2.y - text.corner1.y);
    SMifTextExtras extras;
    extras.hasNoSize = height == 0.0;
    extras.hasEffects = (text.font.style & ~(kBold | kItalic | kUnderlined)) != 0;
    extras.hasBackground = text.font.backColor != kWhite && text.font.backColor != 0;
    extras.hasLabelLine =
        text.labelArrow != 0 || text.labelPoint.x != 0.0 || text.labelPoint.y != 0.0;
    feature.height =
        extras.hasNoSize ? 1.0 : kMifCapitals * LineHeight(height, lines, text.spacing);
    feature.rotation = text.angle;
    constexpr EFeatureAlign kAligns[] = {EFeatureAlign::Left, EFeatureAlign::Centre,
                                         EFeatureAlign::Right};
    feature.align = kAligns[std::clamp(text.justify, 0, 2)];
    feature.vertical = lines == 1 ? EFeatureVertical::Baseline : EFeatureVertical::Bottom;
    const double along = width * static_cast<double>(feature.align) / 2.0;
    feature.position = {std::min(text.corner1.x, text.corner2.x) + along * std::cos(text.angle),
                        std::min(text.corner1.y, text.corner2.y) + along * std::sin(text.angle),
                        0.0};
    return extras;
}

CTextMIF MifTextOf(const STextFeature& feature, SMifTextLosses& losses)
{
    losses.hasShape = feature.widthFactor != 1.0 || feature.slant != 0.0;
    losses.hasColumn = feature.columnWidth > 0.0;
    losses.hasBackslashN = feature.text.contains(QLatin1String("\\n"));
    const SBox box = BoxOf(feature);
    const double cosine = std::cos(feature.rotation);
    const double sine = std::sin(feature.rotation);
    CTextMIF text;
    text.text = feature.text;
    text.text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    text.corner1 = {feature.position.x + box.left * cosine - box.bottom * sine,
                    feature.position.y + box.left * sine + box.bottom * cosine};
    text.corner2 = {text.corner1.x + box.width, text.corner1.y + box.height};
    text.angle = feature.rotation;
    text.justify = static_cast<int>(feature.align);
    if (!feature.font.isEmpty()) {
        text.font.name = feature.font;
    }
    text.font.style = StyleOf(feature);
    text.font.color = feature.color;
    return text;
}

} // namespace velorx
