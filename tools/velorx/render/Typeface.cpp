// SPDX-License-Identifier: MIT
#include "tools/velorx/render/Typeface.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QHash>
#include <QStringList>

namespace velorx {

namespace {

/// Of the width of what drawings are usually made with, the best first.
constexpr const char* kPlain[] = {"Liberation Sans", "Arimo",     "DejaVu Sans Condensed",
                                  "DejaVu Sans",     "Noto Sans", "FreeSans"};
constexpr const char* kEndings[] = {".ttf", ".ttc", ".otf", ".shx"};

QString PlainTypeface()
{
    const QFontDatabase fonts;
    for (const char* name : kPlain) {
        if (fonts.hasFamily(QLatin1String(name))) {
            return QLatin1String(name);
        }
    }
    const QStringList cyrillic = fonts.families(QFontDatabase::Cyrillic);
    return cyrillic.isEmpty() ? fonts.families().value(0) : cyrillic.first();
}

QString WithoutEnding(const QString& name)
{
    for (const char* ending : kEndings) {
        if (name.endsWith(QLatin1String(ending), Qt::CaseInsensitive)) {
            return name.chopped(static_cast<int>(qstrlen(ending)));
        }
    }
    return name;
}

// What the system takes for `name`.
QString Substitute(const QString& name)
{
    return QFontInfo(QFont(name)).family();
}

QString Pick(const QString& name)
{
    if (name.isEmpty()) {
        return PlainTypeface();
    }
    if (QFontDatabase().hasFamily(name)) {
        return name;
    }
    // A name that nobody knows gets what any name gets.
    const QString substitute = Substitute(name);
    const bool isKnown = substitute != Substitute(QStringLiteral("velorx-no-such-typeface"));
    return isKnown ? substitute : PlainTypeface();
}

} // namespace

QString PickTypeface(const QString& name)
{
    constexpr int kMostNames = 200;
    // Asking the system takes long, so there is an end to it. One thread draws.
    static QHash<QString, QString> picked = {{QString(), PlainTypeface()}};
    const QString key = WithoutEnding(name.trimmed());
    const auto found = picked.constFind(key);
    if (found != picked.constEnd()) {
        return *found;
    }
    return picked.size() < kMostNames ? *picked.insert(key, Pick(key)) : PickTypeface(QString());
}

} // namespace velorx
