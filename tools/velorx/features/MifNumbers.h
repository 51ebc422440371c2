// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace velorx {

/// What a pattern of a pen or a brush is called in the stream: "MIF 15". The formats know them by number
/// alone.
inline QString MifNumberName(int number)
{
    return QStringLiteral("MIF ") + QString::number(number);
}

/// The number of a pattern that is called so, in any case and also where a drawing's rules for names
/// have made a "_" of the blank; 0 for another name.
inline int MifNumber(const QString& name)
{
    constexpr int kStart = 4;
    const bool isOurs = name.startsWith(QLatin1String("MIF "), Qt::CaseInsensitive)
        || name.startsWith(QLatin1String("MIF_"), Qt::CaseInsensitive);
    return isOurs ? name.mid(kStart).toInt() : 0;
}

} // namespace velorx
