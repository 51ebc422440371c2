// SPDX-License-Identifier: MIT
#pragma once

/// \file
/// VELOREXCHANGE_EXPORT marks what a host may call; everything else stays inside the library.

#if defined(_WIN32)
#if defined(VELOREXCHANGE_BUILDING)
#define VELOREXCHANGE_EXPORT __declspec(dllexport)
#else
#define VELOREXCHANGE_EXPORT __declspec(dllimport)
#endif
#else
/// In front of each function and class that a host may call.
#define VELOREXCHANGE_EXPORT __attribute__((visibility("default")))
#endif
