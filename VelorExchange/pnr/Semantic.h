// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

namespace VelorExchange::pnr {

/// One attribute of an object.
///
/// The binary writer stores it by `dataType`: 1, 2 and 4 as an integer of that many bytes, 8 as a
/// double, 126 as text, whose `scale` is to be the length of the value's text; attributes of any
/// other type are left out. The text form writes `code` and the value's text and no type.
struct PnrSemantic
{
    qint32 semanticType = -1; ///< The classifier's kind: 17 marks a date, 12 an object reference.
    qint32 code = 0; ///< The semantic code; a file keeps its low 16 bits.
    qint32 dataType = -1; ///< The storage type in a binary file; -1 where the file has none.
    quint8 scale = 0; ///< The raw byte: a text's length, or a number's signed power of ten.
    QString name; ///< For people; no file keeps it.
    QVariant value; ///< The number or the text.
};

} // namespace VelorExchange::pnr
