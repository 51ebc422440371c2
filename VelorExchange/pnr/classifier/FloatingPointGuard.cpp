// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/classifier/FloatingPointGuard_p.h"

#include "VelorExchange/pnr/classifier/RscPlatform_p.h"

namespace VelorExchange::pnr {

unsigned int savedControlWord = 0;
bool isControlWordSaved = false;

// Pending exceptions go first each time: one that is pending while its trap is switched on could
// strike in the middle of the other side's code.
CFloatingPointGuard::CFloatingPointGuard() : callerWord(platform::ControlWord())
{
    if (isControlWordSaved) {
        platform::ClearExceptions();
        platform::SetControlWord(savedControlWord);
    }
}

CFloatingPointGuard::~CFloatingPointGuard()
{
    savedControlWord = platform::ControlWord();
    isControlWordSaved = true;
    platform::ClearExceptions();
    platform::SetControlWord(callerWord);
}

} // namespace VelorExchange::pnr
