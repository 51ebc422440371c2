// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the family says to a person.
namespace VelorExchange::mif::texts {

/// Font of a symbol that the file gives no font.
inline QString NoFont()
{
    return QStringLiteral("шрифт не задан");
}

/// In front of the name of a file that can't be written.
inline QString WriteError()
{
    return QStringLiteral("Ошибка записи файла ");
}

} // namespace VelorExchange::mif::texts
