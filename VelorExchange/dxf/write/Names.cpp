// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Names_p.h"

#include "VelorExchange/dxf/write/CodePage1251_p.h"

#include <string_view>

namespace VelorExchange::dxf {

namespace {

constexpr char16_t kForbidden[] = u"`<>/\\:;?*|,='\"";

bool IsForbidden(QChar c)
{
    return std::u16string_view(kForbidden).find(c.unicode()) != std::u16string_view::npos;
}

} // namespace

void SanitizeName(QString& name, bool allowLeadingDigit)
{
    name = WithinCodePage1251(name.trimmed());
    for (QChar& c : name) {
        if (IsForbidden(c)) {
            c = QChar(u'_');
        }
    }
    if (!allowLeadingDigit && !name.isEmpty() && name.at(0) >= QChar(u'0')
        && name.at(0) <= QChar(u'9')) {
        name.prepend(QChar(u'_'));
    }
}

QString SafeName(const QString& name)
{
    QString safe = name;
    SanitizeName(safe, true);
    return safe;
}

QString LayerName(const QString& name)
{
    const QString safe = SafeName(name);
    if (safe.isEmpty()) {
        return QStringLiteral("0");
    }
    if (safe.compare(QLatin1String("DEFPOINTS"), Qt::CaseInsensitive) == 0) {
        return safe + QLatin1String("_1");
    }
    return safe;
}

} // namespace VelorExchange::dxf
