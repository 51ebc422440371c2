// SPDX-License-Identifier: MIT
#pragma once

namespace velorx::losses {

// What drawings cannot hold as the stream has it.
constexpr char kScale[] = "scale of the map, dropped";
constexpr char kNames[] = "names changed, so that programs take them";
constexpr char kRefused[] = "objects refused: nothing to draw, or a number that is none";
constexpr char kWideLines[] = "lines wider than 2.11 mm, written that wide";
constexpr char kLineWidths[] = "line widths, written as the next of those that drawings know";
constexpr char kSpaceLineTypes[] = "line types of polylines in space, dropped";
constexpr char kSpaceWidths[] = "widths of polylines in space, dropped";
constexpr char kSymbols[] = "symbols of points, dropped";
constexpr char kHatchHeights[] = "heights of fills, dropped";
constexpr char kPatterns[] = "hatches with a pattern, filled with plain lines under its name";
constexpr char kBackgrounds[] = "backgrounds of hatches, dropped";
constexpr char kUnseenAreas[] = "areas without a fill and an outline, written with an outline";
constexpr char kTextHeights[] = "texts above height 0, written at 0";
constexpr char kLongTexts[] = "texts of more than 255 characters, cut";
constexpr char kLetters[] =
    "texts with letters that have no place in the file, \"?\" in the result";
constexpr char kSkewedImages[] = "images that are not rectangular, written as such";
constexpr char kImageData[] = "attributes of images, dropped";
constexpr char kTypedValues[] = "attributes that are no texts, written as texts";
constexpr char kTags[] = "names of attributes changed, so that programs take them";
constexpr char kLongValues[] = "attributes of more than 255 characters, cut";

} // namespace velorx::losses
