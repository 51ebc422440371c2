// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/classifier/RscPlatform_p.h"

#include <cfenv>
#include <cstring>
#include <dlfcn.h>
#include <string>

namespace VelorExchange::pnr::platform {

// A name without a slash would make the loader search the system's folders, while the host means
// the file of that name in the current one.
void* Load(const char* path)
{
    const bool hasFolder = std::strchr(path, '/') != nullptr;
    const std::string file = (hasFolder ? "" : "./") + std::string(path);
    return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}

void* Find(void* library, const char* name)
{
    return dlsym(library, name);
}

void Free(void* library)
{
    dlclose(library);
}

unsigned int ControlWord()
{
    return static_cast<unsigned int>(fegetexcept());
}

void SetControlWord(unsigned int word)
{
    const int trapped = static_cast<int>(word) & FE_ALL_EXCEPT;
    fedisableexcept(FE_ALL_EXCEPT & ~trapped);
    feenableexcept(trapped);
}

void ClearExceptions()
{
    std::feclearexcept(FE_ALL_EXCEPT);
}

} // namespace VelorExchange::pnr::platform
