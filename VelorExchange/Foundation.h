// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// What every family of formats shares: points, the file exception and the export report.

#include "VelorExchange/foundation/ExportLog.h"
#include "VelorExchange/foundation/FileError.h"
#include "VelorExchange/foundation/Point.h"
