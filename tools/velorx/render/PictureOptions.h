// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/render/Picture.h"

#include <QtGlobal>

#include <string>

namespace velorx {

/// The greatest side of a picture, pixels.
constexpr int kGreatestSide = 16384;

/// "1600x1200", up to `kGreatestSide` each way and a hundred million pixels together. Returns why not, in
/// words, or an empty string for success.
std::string ParseSize(const std::string& text, int& width, int& height);

/// "#RRGGBB" or a name, as 0xAARRGGBB. False, with nothing changed, if it is neither.
bool ParseColour(const std::string& text, quint32& colour);

/// The names that `ParseColour` knows: "white, black, ...".
std::string KnownColours();

/// By the ending of a file's name, whatever its case. False if it is that of no picture.
bool FindPictureFormat(const std::string& name, EPictureFormat& format);

} // namespace velorx
