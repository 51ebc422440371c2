// SPDX-License-Identifier: MIT
#pragma once

#include <QChar>
#include <QString>

namespace velorx {

/// Whether a character can stand in a drawing as it is: drawings are written in Windows-1251.
bool HasPlaceInDrawing(QChar c);

/// `text` with `\U+XXXX`, which drawing programs show as the letter, for each letter that has no place
/// in a drawing. Letters beyond the basic plane have no such form and stay; then `isWhole` becomes
/// false, and is left alone otherwise.
QString TextForDrawing(const QString& text, bool& isWhole);

} // namespace velorx
