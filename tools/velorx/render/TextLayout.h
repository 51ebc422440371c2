// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "tools/velorx/render/PictureView.h"

#include <QFont>
#include <QRectF>
#include <QString>
#include <QTransform>

#include <vector>

namespace velorx {

/// A text cut into lines, each in its place.
///
/// Lengths are heights of the text's capital letters. The text's position is (0, 0), x runs along the lines and y
/// downwards; rotation and place come in with `Transform`.
class CTextLayout
{
public:
    explicit CTextLayout(const STextFeature& text);

    struct SLine
    {
        QString text;
        double left; ///< Where it begins.
        double baseline;
        double width;
    };

    /// None for a text without a visible character, or without a size.
    const std::vector<SLine>& Lines() const { return lines; }

    const QFont& Font() const { return font; }

    /// From the pixels of `Font`, from the beginning of the baseline, to the picture's.
    QTransform Transform(const SLine& line, const CPictureView& view) const;

    /// The stroke below `line` of a text that is underlined, in pixels of `Font`.
    QRectF Underline(const SLine& line) const;

    /// Of all lines in the plan.
    SPlanBox Box() const;

private:
    void Cut(const STextFeature& text);
    void Place(const STextFeature& text);
    double WidthOf(const QString& text) const;

    QFont font;
    double unit = 1.0; ///< Of a pixel of the font, heights of capital letters.
    double widthFactor = 1.0;
    double slant = 0.0; ///< To the right for each unit upwards.
    double height = 0.0; ///< File units.
    double rotation = 0.0;
    VelorExchange::CPoint3D position;
    std::vector<SLine> lines;
};

} // namespace velorx
