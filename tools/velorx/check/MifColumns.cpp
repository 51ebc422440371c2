// SPDX-License-Identifier: MIT
#include "tools/velorx/check/MifColumns.h"

#include <QByteArray>
#include <QRegularExpression>

namespace velorx {

namespace {

struct STypeName
{
    const char* name;
    EMifType type;
};

// A type counts wherever its name stands in the word, so that "DateTime" is a date.
constexpr STypeName kTypes[] = {
    {"Char", EMifType::Char},       {"SmallInt", EMifType::SmallInt},
    {"Integer", EMifType::Integer}, {"Decimal", EMifType::Decimal},
    {"Float", EMifType::Float},     {"Date", EMifType::Date},
    {"Logical", EMifType::Logical},
};

struct SCharset
{
    const char* name;
    const char* codec;
};

constexpr SCharset kCharsets[] = {
    {"WindowsLatin1", "windows-1252"},   {"WindowsLatin2", "windows-1250"},
    {"WindowsCyrillic", "windows-1251"}, {"WindowsGreek", "windows-1253"},
    {"WindowsTurkish", "windows-1254"},  {"WindowsHebrew", "windows-1255"},
    {"WindowsArabic", "windows-1256"},   {"WindowsBalticRim", "windows-1257"},
    {"WindowsJapanese", "Shift_JIS"},    {"WindowsSimpChinese", "GBK"},
    {"WindowsTradChinese", "Big5"},      {"WindowsKorean", "EUC-KR"},
    {"CodePage850", "IBM850"},           {"CodePage852", "IBM852"},
    {"CodePage855", "IBM855"},           {"CodePage866", "IBM866"},
    {"ISO8859_1", "ISO-8859-1"},         {"ISO8859_2", "ISO-8859-2"},
    {"ISO8859_5", "ISO-8859-5"},         {"UTF-8", "UTF-8"},
};

} // namespace

bool ReadMifColumn(std::string_view line, SMifColumnType& column)
{
    const QString text = QString::fromLocal8Bit(line.data(), static_cast<int>(line.size()));
    static const QRegularExpression form(
        QStringLiteral("^([^ \\t()]+) +([A-Za-z]+) *(?:\\( *([0-9]+) *(?:, *[0-9]+ *)?\\))? *$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return false;
    }
    column = {match.captured(1), EMifType::Other, match.captured(3).toInt()};
    for (const STypeName& type : kTypes) {
        if (match.captured(2).contains(QLatin1String(type.name), Qt::CaseInsensitive)) {
            column.type = type.type;
            break;
        }
    }
    return true;
}

QByteArray CodecOfCharset(std::string_view charset)
{
    const QByteArray told(charset.data(), static_cast<int>(charset.size()));
    for (const SCharset& known : kCharsets) {
        if (qstricmp(told.constData(), known.name) == 0) {
            return known.codec;
        }
    }
    return {};
}

} // namespace velorx
