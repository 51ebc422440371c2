// SPDX-License-Identifier: MIT
#include "tools/velorx/info/Report.h"

namespace velorx {

QString Title(const char* name, qint64 count)
{
    return QStringLiteral("\n%1 (%2)\n").arg(QLatin1String(name)).arg(count);
}

QString More(qint64 left)
{
    return left == 0 ? QString() : QStringLiteral("  ... and %1 more\n").arg(left);
}

} // namespace velorx
