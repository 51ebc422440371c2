// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifTableNames.h"

#include "tools/velorx/features/MifCodePage.h"

#include <QRegularExpression>

namespace velorx {

namespace {

// So that a name of letters of two bytes, a number and an ending stay below 255 bytes.
constexpr int kLongest = 110;

bool IsForbidden(QChar c)
{
    static const QString characters = QStringLiteral("\\/\"*?:|<>");
    return c < QLatin1Char(' ') || c == QChar(0x7F) || characters.contains(c) || c.isSurrogate()
        || !FitsCodePage(c);
}

// Devices of Windows, also with an ending behind them.
bool IsDevice(const QString& name)
{
    static const QRegularExpression device(
        QStringLiteral("^(con|prn|aux|nul|com[0-9]|lpt[0-9])\\s*(\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return device.match(name).hasMatch();
}

} // namespace

QString SafeFileName(const QString& name)
{
    QString safe = name.trimmed().left(kLongest);
    for (QChar& c : safe) {
        if (IsForbidden(c)) {
            c = QLatin1Char('_');
        }
    }
    // A point in front hides a file, one behind is dropped by Windows.
    if (safe.startsWith(QLatin1Char('.')) || IsDevice(safe)) {
        safe.prepend(QLatin1Char('_'));
    }
    while (safe.endsWith(QLatin1Char('.')) || safe.endsWith(QLatin1Char(' '))) {
        safe.chop(1);
    }
    return safe.isEmpty() ? QStringLiteral("_") : safe;
}

QString CMifTableNames::Of(const QString& layer)
{
    const auto known = names.constFind(layer);
    if (known != names.constEnd()) {
        return *known;
    }
    const QString safe = SafeFileName(layer);
    QString name = safe;
    for (int i = 1; used.contains(name.toCaseFolded()); ++i) {
        name = safe + QLatin1Char('_') + QString::number(i);
    }
    used.insert(name.toCaseFolded());
    names.insert(layer, name);
    return name;
}

} // namespace velorx
