// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/HatchStyle.h"
#include "VelorExchange/dxf/records/LineStyle.h"
#include "VelorExchange/dxf/records/MLineStyle.h"
#include "VelorExchange/foundation/Export.h"

#include <QString>

#include <list>
#include <map>

/// \file
/// Readers of the text files in which drawing programs keep their styles. Each appends what it finds
/// to the container it is given and returns true if anything is in the container afterwards. A file
/// that can't be opened gives false; lines that can't be read are passed over. Text goes through the
/// local codec. The functions keep no state and may run on any thread.

namespace VelorExchange::dxf {

/// Reads hatch patterns. A description keeps its line end.
VELOREXCHANGE_EXPORT bool GetHatchStylesFromFile(const QString& path,
                                                 std::list<CHatchStyleDXF>& styles);

/// Reads line types. Their shapes are looked up by name in the shape source file `shapePath`, which
/// may be missing.
VELOREXCHANGE_EXPORT bool GetLineStylesFromFile(const QString& path,
                                                std::list<CLineStyleDXF>& styles,
                                                const QString& shapePath);

/// Reads multiline styles. Their bodies go to the writer as they are.
VELOREXCHANGE_EXPORT bool GetMLineStylesFromFile(const QString& path,
                                                 std::list<CMLineStyleDXF>& styles);

/// Reads the numbers of shapes, by name, from a shape source file (not a compiled one).
VELOREXCHANGE_EXPORT bool GetShapesFromFile(const QString& path, std::map<QString, int>& shapes);

} // namespace VelorExchange::dxf
