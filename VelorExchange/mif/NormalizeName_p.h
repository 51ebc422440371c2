// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace VelorExchange::mif {

/// Trims `name` and replaces each character that isn't a letter or a digit by "_". Unless
/// `allowLeadingDigit`, a "_" goes before a leading digit.
QString NormalizeName(const QString& name, bool allowLeadingDigit);

} // namespace VelorExchange::mif
