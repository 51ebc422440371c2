// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/MLineStyle.h"

#include <QString>

#include <functional>
#include <utility>
#include <vector>

namespace velorx {

/// Groups of a multiline style behind its name, as a drawing tells them.
using CMLineStyleGroups = std::vector<std::pair<int, QString>>;

/// A multiline style for the writer from its groups: its lines `scale` times as far from the axis, the
/// names of its line types as `lineType` gives them. Without an offset among the groups it has two lines,
/// one drawing unit times `scale` apart.
VelorExchange::dxf::CMLineStyleDXF
MakeMLineStyle(const QString& name, const CMLineStyleGroups& groups, double scale,
               const std::function<QString(const QString&)>& lineType);

} // namespace velorx
