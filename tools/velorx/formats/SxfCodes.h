// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace velorx {

// Codes of attributes that have a meaning of their own.
constexpr qint32 kSxfLayerCode = 0x802A; ///< Names the layer.
constexpr qint32 kSxfLinkToTextCode = 0x8024; ///< The number of a text that belongs to the object.
constexpr qint32 kSxfLinkToObjectCode =
    0x8025; ///< The number of the object that a text belongs to.

/// The classifier code of the frame of a map.
constexpr qint32 kSxfFrameCode = 91000000;

// Alignments of a text on a map: three of the base line, then as many of the middle, the bottom and the
// top; each time left, right and centre.
constexpr int kFirstSxfAlign = 20;
constexpr int kLastSxfAlign = 31;

/// The colour of what is not drawn.
constexpr quint32 kSxfNoColour = 0xFFFFFFFF;

/// The layer of objects that are told none.
constexpr char kSxfNoLayer[] = "SYSTEM";

} // namespace velorx
