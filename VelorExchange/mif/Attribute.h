// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"
#include "VelorExchange/mif/Column.h"

#include <QDate>
#include <QString>
#include <QVariant>

#include <vector>

namespace VelorExchange::mif {

/// One named, typed value of an object.
struct CAttributeMIF
{
    QString name; ///< Unique on its record, without regard to case, where the library made it.
    /// `QString`, int, short, double, float, `QDate` or bool. A writer takes any other type too, but
    /// leaves the column without a type in the header.
    QVariant value;
};

/// What every record starts with: the attributes of the object, in column order.
struct VELOREXCHANGE_EXPORT CAttributeHolderMIF
{
    /// A column whose field is empty has no entry, so there may be fewer of them than columns.
    std::vector<CAttributeMIF> attributes;

    /// Appends `value` under the column's name. The name is trimmed, each character of it that isn't
    /// a letter or a digit becomes "_", and "_" goes before a leading digit; while an attribute of the
    /// record has it, without regard to case, "_1", "_2" and so on are tried. The column's type plays
    /// no part: the value has the type of the overload.
    void AddAttribute(const CColumnMIF& column, const QString& value);
    void AddAttribute(const CColumnMIF& column, int value); ///< See above.
    void AddAttribute(const CColumnMIF& column, short value); ///< `QMetaType::Short`.
    void AddAttribute(const CColumnMIF& column, double value); ///< See above.
    void AddAttribute(const CColumnMIF& column, float value); ///< `QMetaType::Float`.
    void AddAttribute(const CColumnMIF& column, const QDate& value); ///< See above.
    void AddAttribute(const CColumnMIF& column, bool value); ///< See above.

    /// A literal would pass as a bool: hosts say `QStringLiteral`.
    void AddAttribute(const CColumnMIF& column, const char* value) = delete;
};

} // namespace VelorExchange::mif
