// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifCodePage.h"

#include <QTextCodec>

#include <algorithm>

namespace velorx {

namespace {

struct SCharset
{
    const char* charset;
    const char* codePage;
};

constexpr SCharset kCharsets[] = {
    {"WindowsLatin1", "windows-1252"},
    {"WindowsLatin2", "windows-1250"},
    {"WindowsCyrillic", "windows-1251"},
    {"WindowsGreek", "windows-1253"},
    {"WindowsTurkish", "windows-1254"},
    {"WindowsHebrew", "windows-1255"},
    {"WindowsArabic", "windows-1256"},
    {"WindowsBalticRim", "windows-1257"},
    {"WindowsVietnamese", "windows-1258"},
    {"CodePage850", "IBM850"},
    {"CodePage866", "IBM866"},
    {"UTF-8", "UTF-8"},
    {"ISO8859_1", "ISO-8859-1"},
    {"ISO8859_2", "ISO-8859-2"},
    {"ISO8859_5", "ISO-8859-5"},
    {"ISO8859_9", "ISO-8859-9"},
};

} // namespace

bool IsLocalCodePage(const QString& name)
{
    const QTextCodec* codec = QTextCodec::codecForName(name.toLatin1());
    return codec != nullptr && codec->mibEnum() == QTextCodec::codecForLocale()->mibEnum();
}

QString CodePageOfCharset(const QString& charset)
{
    for (const SCharset& known : kCharsets) {
        if (charset.compare(QLatin1String(known.charset), Qt::CaseInsensitive) == 0) {
            return QLatin1String(known.codePage);
        }
    }
    return {};
}

bool FitsCodePage(const QString& text)
{
    const auto isAscii = [](QChar c) { return c.unicode() < 0x80; };
    return std::all_of(text.begin(), text.end(), isAscii)
        || QTextCodec::codecForLocale()->canEncode(text);
}

} // namespace velorx
