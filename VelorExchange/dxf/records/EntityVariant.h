// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/records/Arc.h"
#include "VelorExchange/dxf/records/AttDef.h"
#include "VelorExchange/dxf/records/Ellipse.h"
#include "VelorExchange/dxf/records/Face3D.h"
#include "VelorExchange/dxf/records/Hatch.h"
#include "VelorExchange/dxf/records/Image.h"
#include "VelorExchange/dxf/records/Insert.h"
#include "VelorExchange/dxf/records/Line.h"
#include "VelorExchange/dxf/records/LWPolyline.h"
#include "VelorExchange/dxf/records/MLine.h"
#include "VelorExchange/dxf/records/MText.h"
#include "VelorExchange/dxf/records/Point.h"
#include "VelorExchange/dxf/records/Polyline.h"
#include "VelorExchange/dxf/records/Ray.h"
#include "VelorExchange/dxf/records/Solid.h"
#include "VelorExchange/dxf/records/Spline.h"
#include "VelorExchange/dxf/records/Text.h"
#include "VelorExchange/dxf/records/XLine.h"

#include <boost/variant2/variant.hpp>

namespace VelorExchange::dxf {

/// Any entity of a block. The index tells the kind, in the order of this list.
using CEntityVariantDXF =
    boost::variant2::variant<CPointDXF, CLineDXF, CXLineDXF, CArcDXF, CSplineDXF, CLWPolylineDXF,
                             CPolylineDXF, CTextDXF, CMTextDXF, CSolidDXF, CHatchDXF, C3DFaceDXF,
                             CImageDXF, CRayDXF, CMLineDXF, CAttDefDXF, CInsertDXF, CEllipseDXF>;

} // namespace VelorExchange::dxf
