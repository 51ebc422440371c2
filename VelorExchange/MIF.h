// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// Reading and writing of MIF/MID pairs.

#include "VelorExchange/mif/Arc.h"
#include "VelorExchange/mif/Attribute.h"
#include "VelorExchange/mif/Brush.h"
#include "VelorExchange/mif/Column.h"
#include "VelorExchange/mif/Font.h"
#include "VelorExchange/mif/IMIFReader.h"
#include "VelorExchange/mif/IMIFWriter.h"
#include "VelorExchange/mif/Pen.h"
#include "VelorExchange/mif/Point.h"
#include "VelorExchange/mif/Polyline.h"
#include "VelorExchange/mif/Read.h"
#include "VelorExchange/mif/Rect.h"
#include "VelorExchange/mif/Region.h"
#include "VelorExchange/mif/RoundRect.h"
#include "VelorExchange/mif/Symbol.h"
#include "VelorExchange/mif/Text.h"
