// SPDX-License-Identifier: MIT
#pragma once

namespace velorx {

/// The empty block through which drawings keep what stands beside an object: an insert of it comes ahead of
/// the object, with one hidden attribute for each of the object's.
constexpr char kDataBlock[] = "VELORX_DATA";

/// The tag of the attribute that holds the classifier code of the object.
constexpr char kCodeTag[] = "CODE";

} // namespace velorx
