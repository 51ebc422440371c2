// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/HatchStyle.h"

#include <QString>

#include <vector>

namespace velorx {

/// The lines that a pattern's name stands for, whatever its case: "ANSI37", or "MIF 15" for a brush. Plain
/// slanted lines for a name that is not known. Lengths are pixels; the offsets lie along the line and, to its
/// left, across it. Dashes are as in `SFeatureLineType`.
std::vector<VelorExchange::dxf::CHatchLineDXF> StandardPattern(const QString& name);

} // namespace velorx
