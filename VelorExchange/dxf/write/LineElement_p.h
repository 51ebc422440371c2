// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/LineStyle.h"

#include <QString>
#include <QStringView>

#include <map>
#include <vector>

namespace VelorExchange::dxf {

/// Reads what stands between the brackets of a complex element of a line type, all blanks already
/// taken out, and appends the element to `pattern` if it is complete. With a double quote in it, it is
/// a text, otherwise a shape, whose number is looked up in `shapes` and whose style is `shapeStyle`.
void ReadLineElement(QStringView text, const std::map<QString, int>& shapes,
                     const QString& shapeStyle, std::vector<CLineElementDXF>& pattern);

} // namespace VelorExchange::dxf
