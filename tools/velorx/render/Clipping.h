// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/render/PictureView.h"

#include <QLineF>
#include <QRectF>

namespace velorx {

/// Cuts `line` to what lies in `frame`. False, with nothing changed, if nothing does.
bool ClipLine(QLineF& line, const QRectF& frame);

/// What a ring encloses within `frame`, as a ring; parts of it can run along the frame. Empty if there
/// is nothing.
CPixelLine ClipRing(CPixelLine ring, const QRectF& frame);

/// The rectangle around `points`, which need not have an area.
QRectF BoundsOf(const CPixelLine& points);

/// Whether two rectangles share a point, even where one of them has no area.
bool Touch(const QRectF& one, const QRectF& other);

} // namespace velorx
