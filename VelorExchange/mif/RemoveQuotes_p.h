// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace VelorExchange::mif {

/// `text` without its double quotes and the white space that touches them, as
/// `QString::remove(QRegExp("(\\s*\"\\s*)"))` makes it.
QString RemoveQuotes(const QString& text);

} // namespace VelorExchange::mif
