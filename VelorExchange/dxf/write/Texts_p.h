// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the writer counts elements under in the export report.
namespace VelorExchange::dxf::texts {

inline QString Layers()
{
    return QStringLiteral("слои");
}

inline QString Points()
{
    return QStringLiteral("точки");
}

inline QString Faces()
{
    return QStringLiteral("3D-грани");
}

inline QString Polylines()
{
    return QStringLiteral("полилинии");
}

inline QString SpacePolylines()
{
    return QStringLiteral("3D-полилинии");
}

inline QString MultiLines()
{
    return QStringLiteral("мультилинии");
}

inline QString Hatches()
{
    return QStringLiteral("штриховки");
}

inline QString Texts()
{
    return QStringLiteral("тексты");
}

inline QString Blocks()
{
    return QStringLiteral("блоки");
}

inline QString Images()
{
    return QStringLiteral("растровые подложки");
}

} // namespace VelorExchange::dxf::texts
