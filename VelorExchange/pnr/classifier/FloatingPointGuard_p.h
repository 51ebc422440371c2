// SPDX-License-Identifier: MIT
#pragma once

namespace VelorExchange::pnr {

/// The control word that the closed library left behind, and whether there is one yet. Both belong
/// to the one thread that uses the classifier.
extern unsigned int savedControlWord;
extern bool isControlWordSaved;

/// Stands around the calls of one operation into the closed library: the library runs under the
/// control word that it left behind, the caller gets its own back. Guards must not be nested: the
/// inner one would hide the library's changes from the outer one.
class CFloatingPointGuard final
{
public:
    /// Keeps the caller's word; from the second guard on, installs the library's.
    CFloatingPointGuard();

    /// Keeps the library's word and installs the caller's.
    ~CFloatingPointGuard();

    CFloatingPointGuard(const CFloatingPointGuard&) = delete;
    CFloatingPointGuard(CFloatingPointGuard&&) = delete;
    CFloatingPointGuard& operator=(const CFloatingPointGuard&) = delete;
    CFloatingPointGuard& operator=(CFloatingPointGuard&&) = delete;

private:
    unsigned int callerWord;
};

} // namespace VelorExchange::pnr
