// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velorx {

/// The typeface to draw with where a source asks for `name`, which can be empty or the name of a font's
/// file: that one if it is there, else the one that the system has in its place, else a plain one that
/// has Cyrillic letters, as it is for every name beyond the first few hundred. Empty if there is no font at all. Needs a `QGuiApplication`.
QString PickTypeface(const QString& name);

} // namespace velorx
