// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/pnr/classifier/PanoramaRscClsReader.h"

#include <array>

namespace VelorExchange::pnr {

/// One operation that the closed library must offer, and the pointer of the reader that takes it.
struct CRscOperation
{
    const char* name; ///< As the library exports it.
    void (*assign)(CPanoramaRscClsReader& reader, void* address); ///< Null clears the pointer.
    bool (*isAssigned)(const CPanoramaRscClsReader& reader);
};

/// The operations of the closed library, as a type so that the reader can befriend it.
struct CRscLibrary
{
    using COperations = std::array<CRscOperation, 22>;

    /// All of them, in the order in which they are looked up.
    static const COperations& Operations();
};

} // namespace VelorExchange::pnr
