// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace VelorExchange::dxf {

/// Makes `name` one that drawing programs take: trims it, puts "_" for each of fourteen characters and
/// for each letter that Windows-1251 lacks, and puts a "_" in front of a leading digit unless
/// `allowLeadingDigit`. The result can be empty.
void SanitizeName(QString& name, bool allowLeadingDigit);

/// `name` after `SanitizeName` with leading digits allowed.
QString SafeName(const QString& name);

/// The name under which a layer is filed: safe, "0" for an empty one, and never "DEFPOINTS", which
/// drawing programs don't plot.
QString LayerName(const QString& name);

} // namespace VelorExchange::dxf
