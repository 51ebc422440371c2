// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// Listing RSC classifiers and drawing samples of their objects through Panorama's closed library.

#include "VelorExchange/pnr/classifier/PanoramaRscClsReader.h"
