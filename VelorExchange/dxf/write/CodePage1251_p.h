// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace VelorExchange::dxf {

/// The byte of `c` in Windows-1251, or 0 if it has none (and for the character 0 itself).
char ToCodePage1251(QChar c);

/// Appends `text` in Windows-1251 to `out`. A letter that the code page lacks is "?", also one that
/// takes two `QChar`s.
void AppendCodePage1251(QByteArray& out, const QChar* text, int size);

/// `text` with "_" for each letter that Windows-1251 lacks.
QString WithinCodePage1251(const QString& text);

} // namespace VelorExchange::dxf
