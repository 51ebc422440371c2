// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velorx {

/// `plain` with the codes of a TEXT or an ATTRIB where a letter would be taken for a code, has no place in a
/// drawing, or would be simplified away; a drawing program, and `PlainOfText`, show `plain` again. Letters
/// beyond the basic plane have no code; then `isWhole` becomes false.
QString CodedText(const QString& plain, bool& isWhole);

/// The same for an MTEXT, where line feeds are codes and blanks stay as they are.
QString CodedMText(const QString& plain, bool& isWhole);

/// `coded` for an MTEXT with codes for the blanks at which the writer parts it, every 250 characters: a reader
/// takes blanks off each part.
QString WithCodesAtSeams(QString coded);

} // namespace velorx
