// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// DXF drawings: the records, reading, writing, colours and style files.

#include "VelorExchange/dxf/read/Read.h"
#include "VelorExchange/dxf/records/IDXFReader.h"
#include "VelorExchange/dxf/write/Colour.h"
#include "VelorExchange/dxf/write/IDXFWriter.h"
#include "VelorExchange/dxf/write/StyleFiles.h"
