// SPDX-License-Identifier: MIT
#include "tools/velorx/Output.h"

#include <cstdio>

namespace velorx {

bool Print(const QByteArray& text)
{
    const auto size = static_cast<std::size_t>(text.size());
    const bool written = std::fwrite(text.constData(), 1, size, stdout) == size;
    if (std::fflush(stdout) == 0 && written) {
        return true;
    }
    PrintError("cannot write to standard output");
    return false;
}

void PrintError(const std::string& message)
{
    // There is nowhere left to tell that this failed.
    static_cast<void>(std::fprintf(stderr, "velorx: %s\n", message.c_str()));
}

} // namespace velorx
