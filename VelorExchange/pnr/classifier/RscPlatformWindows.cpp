// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/classifier/RscPlatform_p.h"

#include <float.h>
#include <windows.h>

namespace VelorExchange::pnr::platform {

namespace {

// The bits of the control word that say which exceptions are masked, denormal operands among them.
constexpr unsigned int kExceptionMask = 0x8001F;

} // namespace

void* Load(const char* path)
{
    return LoadLibraryA(path);
}

// The cast is the one that GetProcAddress is made for.
void* Find(void* library, const char* name)
{
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}

void Free(void* library)
{
    FreeLibrary(static_cast<HMODULE>(library));
}

unsigned int ControlWord()
{
    unsigned int word = 0;
    _controlfp_s(&word, 0, 0);
    return word;
}

void SetControlWord(unsigned int word)
{
    unsigned int current = 0;
    _controlfp_s(&current, word, kExceptionMask);
}

void ClearExceptions()
{
    _clearfp();
}

} // namespace VelorExchange::pnr::platform
