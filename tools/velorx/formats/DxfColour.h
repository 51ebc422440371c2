// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace velorx {

/// A colour of a DXF record (0x00BBGGRR) as "#RRGGBB", or "by block".
QString ColourName(quint32 colour);

} // namespace velorx
