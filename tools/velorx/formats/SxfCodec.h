// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QTextCodec>

namespace velorx {

/// The code page of text in SXF maps: the local one where that has one byte a character, else
/// windows-1251. The library has the same rule.
const QTextCodec& SxfCodec();

/// The text of a field that is padded with zeros, without blanks around it.
QString SxfFieldText(const QByteArray& field);

} // namespace velorx
