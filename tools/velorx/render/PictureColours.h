// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QtGlobal>

namespace velorx {

/// Colours of a drawing against the background of its picture.
///
/// White lines on paper, and black ones on a dark screen, mean the same to whoever drew them: the colour
/// that stands out. They change places where they would not be seen.
class CPictureColours
{
public:
    /// `background` is 0xAARRGGBB; where it shows through, paper is taken to lie below.
    explicit CPictureColours(quint32 background);

    /// For lines, texts and marks of the colour `color`, 0x00BBGGRR.
    QColor Line(quint32 color) const;

    /// For areas: black ones become white on a dark background, but white ones stay, since they are there to hide
    /// what lies below.
    QColor Area(quint32 color) const;

    /// Between `color` and the background, for what stands in for too many lines.
    QColor Tint(quint32 color) const;

    QColor Background() const { return paper; }

private:
    bool IsDark() const;

    QColor paper;
};

} // namespace velorx
