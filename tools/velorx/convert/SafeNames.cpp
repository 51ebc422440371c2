// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/SafeNames.h"

#include "tools/velorx/formats/DrawingText.h"

namespace velorx {

namespace {

const QString& Forbidden()
{
    static const QString characters = QStringLiteral("`<>/\\:;?*|,='\"");
    return characters;
}

QString Safe(const QString& name)
{
    QString safe = name.trimmed();
    for (QChar& c : safe) {
        if (c < QLatin1Char(' ') || Forbidden().contains(c) || !HasPlaceInDrawing(c)) {
            c = QLatin1Char('_');
        }
    }
    return safe.isEmpty() ? QStringLiteral("_") : safe;
}

} // namespace

void CSafeNames::Reserve(const QString& target)
{
    used.insert(target.toCaseFolded());
}

void CSafeNames::Define(const QString& source, const QString& target)
{
    folded.insert(source.toCaseFolded(), target);
    Reserve(target);
}

void CSafeNames::Withdraw(const QString& source)
{
    folded.remove(source.toCaseFolded());
    exact.clear();
}

QString CSafeNames::Of(const QString& source)
{
    const auto known = exact.constFind(source);
    if (known != exact.constEnd()) {
        return *known;
    }
    const QString key = source.trimmed().toCaseFolded();
    auto entry = folded.constFind(key);
    if (entry == folded.constEnd()) {
        const QString target = Unused(Safe(source));
        Reserve(target);
        entry = folded.insert(key, target);
    }
    if (!key.isEmpty() && entry->toCaseFolded() != key) {
        changed.insert(key);
    }
    exact.insert(source, *entry);
    return *entry;
}

QString CSafeNames::Unused(const QString& safe)
{
    if (!used.contains(safe.toCaseFolded())) {
        return safe;
    }
    int& number = numbers[safe.toCaseFolded()];
    QString candidate;
    do {
        candidate = safe + QLatin1Char('_') + QString::number(++number);
    } while (used.contains(candidate.toCaseFolded()));
    return candidate;
}

} // namespace velorx
