// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the readers and writers of this family say to a person.
namespace VelorExchange::pnr::texts {

constexpr wchar_t kCannotOpen[] = L"Не удалось открыть файл";
constexpr wchar_t kVersionNotSupported[] = L"Данная версия формата не поддерживается";
/// Spelt as hosts know it (PnrBinReader.RefusesAWrongChecksum).
constexpr wchar_t kWrongChecksum[] = L"Контрольная сумма файла некорртна";
constexpr wchar_t kWrongFormat[] = L"Некорректный формат файла";

/// The file's name follows.
inline QString WriteError()
{
    return QStringLiteral("Ошибка записи файла ");
}

/// In front of the file's name in the report; the blank makes two with the one that follows.
inline QString UserMapPrefix()
{
    return QStringLiteral("(пользовательская карта) ");
}

inline QString TerrainMapPrefix()
{
    return QStringLiteral("(карта местности) ");
}

inline QString PointObjects()
{
    return QStringLiteral("точечные объекты");
}

inline QString LineObjects()
{
    return QStringLiteral("линейные объекты");
}

inline QString SquareObjects()
{
    return QStringLiteral("площадные объекты");
}

inline QString TextObjects()
{
    return QStringLiteral("тексты");
}

/// Name of the attribute that ties a text to its object.
inline QString LinkToObject()
{
    return QStringLiteral("ССЫЛКА ПОДПИСИ НА ОБЪЕКТ");
}

/// Name of the attribute that ties an object to its text.
inline QString LinkToText()
{
    return QStringLiteral("ССЫЛКА НА ПОДПИСЬ");
}

} // namespace VelorExchange::pnr::texts
