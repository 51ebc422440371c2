// SPDX-License-Identifier: MIT
#pragma once

namespace velorx {

/// The empty block through which drawings keep what stands beside an object: an insert of it comes ahead of
/// the object, with one hidden attribute for each of the object's.
constexpr char kDataBlock[] = "VELORX_DATA";

/// The tag of the attribute that holds the classifier code of the object.
constexpr char kCodeTag[] = "CODE";

/// The tag of the attribute that holds how many closed polylines behind the object belong to it: the outlines
/// of what it fills, or further rings of an area without a fill.
constexpr char kOutlinesTag[] = "OUTLINES";

} // namespace velorx
