// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// SXF maps in their binary and their text form: the objects, the reader, the writer and the five
/// functions that make them.

#include "VelorExchange/pnr/Factory.h"
#include "VelorExchange/pnr/Images.h"
#include "VelorExchange/pnr/IPnrReader.h"
#include "VelorExchange/pnr/IPnrWriter.h"
#include "VelorExchange/pnr/Objects.h"
#include "VelorExchange/pnr/Semantic.h"
#include "VelorExchange/pnr/VertexHolder.h"
