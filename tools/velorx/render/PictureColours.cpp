// SPDX-License-Identifier: MIT
#include "tools/velorx/render/PictureColours.h"

namespace velorx {

namespace {

constexpr quint32 kBlack = 0x000000;
constexpr quint32 kWhite = 0xFFFFFF;

QColor ColourOf(quint32 color)
{
    return {static_cast<int>(color & 0xFFU), static_cast<int>(color >> 8U & 0xFFU),
            static_cast<int>(color >> 16U & 0xFFU)};
}

int Mean(int one, int other)
{
    return (one + other) / 2;
}

} // namespace

CPictureColours::CPictureColours(quint32 background) : paper(QColor::fromRgba(background)) { }

bool CPictureColours::IsDark() const
{
    constexpr int kMiddle = 128;
    return paper.alpha() >= kMiddle && qGray(paper.rgb()) < kMiddle;
}

QColor CPictureColours::Line(quint32 color) const
{
    constexpr int kNearWhite = 192;
    const bool isLost = (color & kWhite) == kWhite && !IsDark()
        && (qGray(paper.rgb()) >= kNearWhite || paper.alpha() == 0);
    return isLost ? ColourOf(kBlack) : Area(color);
}

QColor CPictureColours::Area(quint32 color) const
{
    constexpr int kNearBlack = 64;
    const bool isLost = (color & kWhite) == kBlack && IsDark() && qGray(paper.rgb()) < kNearBlack;
    return ColourOf(isLost ? kWhite : color);
}

QColor CPictureColours::Tint(quint32 color) const
{
    const QColor line = Area(color);
    const QColor below = paper.alpha() == 0 ? ColourOf(kWhite) : paper;
    return {Mean(line.red(), below.red()), Mean(line.green(), below.green()),
            Mean(line.blue(), below.blue())};
}

} // namespace velorx
