// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string_view>
#include <vector>

namespace velorx {

/// Types of columns.
enum class EMifType { Char, Integer, SmallInt, Decimal, Float, Date, Logical, Other };

/// A column, as the header tells it.
struct SMifColumnType
{
    QString name;
    EMifType type = EMifType::Other;
    int width = 0; ///< Characters, of texts; 0 where it is not told.
};

/// What the rows have to follow.
struct SMifTableHead
{
    std::vector<SMifColumnType> columns;
    char delimiter = '\t';
    QByteArray
        charset; ///< Name of the codec for the header's character set; empty if it tells none.
};

/// The column that a line of the header tells: "NAME Char (50)". False if it tells none. A type that the
/// library does not read is `Other`.
bool ReadMifColumn(std::string_view line, SMifColumnType& column);

/// Name of the codec for a character set as a header tells it, "WindowsCyrillic"; empty for "Neutral" and for
/// unknown ones.
QByteArray CodecOfCharset(std::string_view charset);

} // namespace velorx
