// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/mif/Pen.h"

namespace velorx {

/// One pixel of a pen or a fill, millimetres on paper. Dashes are told in file units as they are on
/// paper at 1:1000 in metres, which is to say that a pixel is as many units as it is millimetres.
constexpr double kMifPixel = 25.4 / 96.0;

/// The stroke that a pen draws. A pattern of dashes is the line type "MIF 4"; one of other marks has a
/// name alone and no dashes.
SFeatureStroke StrokeOfPen(const VelorExchange::mif::CPenMIF& pen);

/// Whether a pen draws other marks than dashes: arrows, ties, waves.
bool HasMarks(const VelorExchange::mif::CPenMIF& pen);

/// A pen for a stroke, and in what it differs.
struct SMifPen
{
    VelorExchange::mif::CPenMIF pen;
    bool isNearType = false; ///< The line type became the pattern that is most like it.
    bool isCut = false; ///< The widest pen is narrower than the stroke.
};

/// The pen that is most like a stroke. Line types that are called as `StrokeOfPen` calls them become
/// the pattern that they were.
SMifPen PenOfStroke(const SFeatureStroke& stroke);

} // namespace velorx
