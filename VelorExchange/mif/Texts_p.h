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

inline QString Texts()
{
    return QStringLiteral("тексты");
}

inline QString Polylines()
{
    return QStringLiteral("полилинии");
}

inline QString Regions()
{
    return QStringLiteral("регионы");
}

inline QString Points()
{
    return QStringLiteral("точки");
}

} // namespace VelorExchange::mif::texts
