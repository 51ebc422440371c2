// SPDX-License-Identifier: MIT
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/render/Clipping.h"
#include "tools/velorx/render/ImageFrame.h"
#include "tools/velorx/render/PictureSink.h"
#include "tools/velorx/render/TextLayout.h"

#include <QPainterPath>

#include <algorithm>

namespace velorx {

namespace {

constexpr quint32 kFrameColour = 0x808080;

CPixelLine CornersOf(const SPlanBox& box, const CPictureView& view)
{
    return {view.Map(box.left, box.top), view.Map(box.right, box.bottom)};
}

} // namespace

void CPictureSink::Write(const CTextLayout& layout, const QColor& colour, bool isUnderlined)
{
    for (const CTextLayout::SLine& line : layout.Lines()) {
        const QTransform transform = layout.Transform(line, view);
        QPainterPath outline;
        if (style.keepsText) {
            painter.Write(line.text, layout.Font(), transform, colour);
        } else {
            outline.addText(QPointF(0, 0), layout.Font(), line.text);
        }
        if (isUnderlined) {
            outline.addRect(layout.Underline(line));
        }
        outline.setFillRule(Qt::WindingFill);
        painter.Fill(transform.map(outline), colour);
    }
}

const char* CPictureSink::Take(const STextFeature& text)
{
    if (!IsAsked(text)) {
        return nullptr;
    }
    const CTextLayout layout(text);
    if (layout.Lines().empty()) {
        tally.Lose(QStringLiteral("texts have nothing to show"), text.layer);
        return nullptr;
    }
    if (!IsInside(text, CornersOf(layout.Box(), view))) {
        return nullptr;
    }
    Write(layout, colours.Line(text.color), text.isUnderlined);
    return Done("text");
}

// The image itself is not loaded, so its name stands in its frame, where there is room for it.
void CPictureSink::Label(const SImageFeature& image, const CPixelLine& ring)
{
    constexpr double kLetters = 7.0;
    constexpr double kRoom = 5.0; // heights of letters
    const QRectF bounds = BoundsOf(ring);
    STextFeature label;
    label.text = image.name.isEmpty() ? image.path : image.name;
    label.position = {image.origin.x + (image.along.x + image.across.x) / 2,
                      image.origin.y + (image.along.y + image.across.y) / 2, 0.0};
    label.height = kLetters / view.Pixels(1.0);
    label.align = EFeatureAlign::Centre;
    label.vertical = EFeatureVertical::Middle;
    const CTextLayout layout(label);
    const bool hasText = !layout.Lines().empty();
    const double width = hasText ? layout.Lines().front().width * kLetters : 0.0;
    if (hasText && bounds.height() > kRoom * kLetters && bounds.width() > width) {
        Write(layout, colours.Line(kFrameColour), false);
    }
}

const char* CPictureSink::Take(const SImageFeature& image)
{
    CPixelLine ring = Map(ImageRing(image));
    if (!IsAsked(image) || !IsInside(image, ring)) {
        return nullptr;
    }
    SFeatureStroke stroke;
    stroke.color = kFrameColour;
    ring.push_back(ring.front());
    Stroke(ring, stroke);
    Label(image, ring);
    return Done("frame");
}

} // namespace velorx
