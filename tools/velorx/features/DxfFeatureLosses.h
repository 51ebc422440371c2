// SPDX-License-Identifier: MIT
#pragma once

namespace velorx::losses {

// Behind the kind of what is left out.
constexpr char kNothing[] = ", nothing to draw: left out";
constexpr char kNoNumber[] = ", with a number that is none: left out";
constexpr char kEndless[] = ", a line without an end: left out";
constexpr char kNoSize[] = ", without a size in pixels: left out";
constexpr char kWordless[] = ", without a letter: left out";
constexpr char kHelp[] = ", that a dimension hangs on: left out";
constexpr char kNotRead[] = ", not read: left out";
constexpr char kWithinItself[] = ", of a block within itself: left out";
constexpr char kTooDeep[] = ", of a block within a hundred others: left out";

// By themselves, what is left out.
constexpr char kTooMany[] = "elements of blocks beyond the first five million, left out";
constexpr char kAttDefs[] = "attribute definitions, left out";
constexpr char kLayoutBlocks[] = "elements of layout blocks, left out";
constexpr char kRepeatedBlocks[] = "blocks defined once more under the same name, left out";
constexpr char kUnusedBlocks[] = "blocks that no insert draws, left out";
constexpr char kLooseData[] = "attributes that no object follows, left out";

// What an insert is written as.
constexpr char kAsParts[] = "what its block holds";

// By themselves, what is changed.
constexpr char kCurves[] = "curves, written in chords";
constexpr char kCoarseCurves[] = "curves in 10,000 chords each, which are coarser than asked for";
constexpr char kBlocks[] = "block references, written as what their blocks hold";
constexpr char kPictures[] = "dimensions and tables, written as what is drawn of them";
constexpr char kNoBlock[] = "block references without anything to draw, written as points";
constexpr char kMultilines[] = "multilines, written as the lines that they consist of";
constexpr char kNoMultilineStyle[] =
    "multilines whose style is not in the drawing, drawn as two lines";
constexpr char kMultilineFills[] = "fills of multilines, dropped";
constexpr char kBoundaries[] = "hatches with boundaries that enclose nothing, which are left out";
constexpr char kFormats[] = "texts with formatting that is dropped";
constexpr char kAnchors[] =
    "texts set by their middle or right end, set by the left one at the same place";
constexpr char kStretchedTexts[] =
    "texts stretched between two points, set by the left one in their own width";
constexpr char kMirroredTexts[] = "texts mirrored by their insert, written to be read";
constexpr char kFollowedColours[] =
    "elements of blocks in the colour of their insert's layer, black among other black ones";
constexpr char kLineTypes[] = "line types with letters or shapes, drawn with their dashes alone";
constexpr char kNoHeight[] = "texts without a height, written 2.5 units high";

} // namespace velorx::losses
