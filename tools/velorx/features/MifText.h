// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "VelorExchange/mif/Text.h"

namespace velorx {

/// What a text of a table has that the stream does not carry.
struct SMifTextExtras
{
    bool hasEffects = false; ///< Halo, shadow, wide letters and the like.
    bool hasBackground = false;
    bool hasLabelLine = false; ///< A line leads from it to its place.
    bool hasNoSize = false; ///< Its rectangle has no height; the height became 1.
};

/// Fills text, position, size and look of `feature` from a text of a table.
///
/// A table tells the rectangle of the unturned text, which turns about its lower left corner. Of the
/// height of a line's box capital letters take `kMifCapitals`.
SMifTextExtras FillFromMifText(const VelorExchange::mif::CTextMIF& text, STextFeature& feature);

/// Capital letters as a part of the height of a line.
constexpr double kMifCapitals = 0.69;

/// What a table cannot tell of a text.
struct SMifTextLosses
{
    bool hasShape = false; ///< Width or slant of its letters.
    bool hasColumn = false; ///< It was broken into lines at a width.
    bool hasBackslashN = false; ///< It holds the two characters that stand for a line break.
};

/// A text for a table. Its rectangle has the text's position in the lower left corner, or in the middle of
/// its lower side or at the end, as `justify` tells. How wide the letters are is a guess.
VelorExchange::mif::CTextMIF MifTextOf(const STextFeature& feature, SMifTextLosses& losses);

} // namespace velorx
