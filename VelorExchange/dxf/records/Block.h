// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/EntityVariant.h"

#include <QString>

#include <vector>

namespace VelorExchange::dxf {

/// A block with all its entities. Its base point is not kept.
struct CBlockDXF
{
    QString name; ///< Can be empty.
    std::vector<CEntityVariantDXF> entities; ///< In file order.
};

} // namespace VelorExchange::dxf
