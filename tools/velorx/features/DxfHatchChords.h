// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/Feature.h"
#include "tools/velorx/formats/DxfHatchOutlines.h"
#include "VelorExchange/dxf/records/Hatch.h"

namespace velorx {

class CChords;

/// `hatch` as the reader delivers it, with chords in the place of elliptic and spline edges.
VelorExchange::dxf::CHatchDXF WithChords(const VelorExchange::dxf::CHatchDXF& hatch,
                                         CChords& chords);

/// The ring at the height `elevation`, with chords in the place of its arcs.
CFeatureLine RingWithChords(const CHatchRing& ring, double elevation, CChords& chords);

/// Whether a boundary of `hatch` bends anywhere.
bool HasCurves(const VelorExchange::dxf::CHatchDXF& hatch);

} // namespace velorx
