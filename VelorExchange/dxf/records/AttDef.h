// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace VelorExchange::dxf {

/// ATTDEF, kept in blocks alone.
struct CAttDefDXF
{
    QString tag; ///< Name of the attribute.
    QString value; ///< Its default.
    QString extra; ///< Always empty.
};

} // namespace VelorExchange::dxf
