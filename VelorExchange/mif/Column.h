// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace VelorExchange::mif {

/// What the values of a column are, and the type in which they reach the host.
enum ColumnType : qint32 {
    Char = 1, ///< `QString` of up to 255 characters.
    Integer = 2, ///< int.
    Smallint = 3, ///< short.
    Decimal = 4, ///< double.
    Float = 5, ///< float.
    Date = 6, ///< `QDate`.
    Logical = 7 ///< bool.
};

/// A column as the header of a file defines it. Widths and decimals aren't kept.
struct CColumnMIF
{
    QString name; ///< As it stands in the header.
    ColumnType type = ColumnType(); ///< 0 while the column isn't defined.
};

} // namespace VelorExchange::mif
