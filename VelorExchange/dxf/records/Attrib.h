// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Text.h"

#include <QString>

namespace VelorExchange::dxf {

/// ATTRIB, an attribute of an insert.
struct CAttribDXF : CTextDXF
{
    QString tag; ///< Name of the attribute.
    bool hidden = false; ///< For the writer; the reader never sets it.
};

} // namespace VelorExchange::dxf
