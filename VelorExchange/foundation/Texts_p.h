// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the export report says to a person.
namespace VelorExchange::texts {

/// A line feed and 59 dashes: stands under every line of the report.
inline QString Rule()
{
    return QStringLiteral("\n-----------------------------------------------------------");
}

inline QString ExportToFile()
{
    return QStringLiteral("Экспорт в файл - ");
}

/// %1 the kind of object, %2 the count, %3 the rule.
inline QString WrittenToFile()
{
    return QStringLiteral("\nЗаписаны в файл %1 - %2%3");
}

} // namespace VelorExchange::texts
