// SPDX-License-Identifier: MIT
// The test of the Windows half of the platform layer, with the guard on top. It stands alone, since it
// runs under wine without the test library. Argument: the path of the stand-in.
#include "VelorExchange/pnr/classifier/FloatingPointGuard_p.h"
#include "VelorExchange/pnr/classifier/RscPlatform_p.h"

#include <cstdio>
#include <float.h>
#include <windows.h>

using namespace VelorExchange::pnr;

namespace {

constexpr unsigned int kAllMasked = _MCW_EM;
constexpr unsigned int kTrapsDivision = _MCW_EM & ~static_cast<unsigned int>(_EM_ZERODIVIDE);

// The status bit has the value of the mask bit; some headers have no name for it.
constexpr unsigned int kInexact = _EM_INEXACT;

int failures = 0;

void Check(const char* what, bool holds)
{
    std::printf("%s %s\n", holds ? "ok    " : "FAILED", what);
    failures += holds ? 0 : 1;
}

unsigned int Mask()
{
    return platform::ControlWord() & kAllMasked;
}

void Restart()
{
    _clearfp();
    platform::SetControlWord(kAllMasked);
    savedControlWord = 0;
    isControlWordSaved = false;
}

// Leaves an inexact result pending.
void MakeInexact()
{
    volatile double one = 1.0;
    volatile double third = one / 3.0;
    static_cast<void>(third);
}

void TestLoading(const char* path)
{
    Check("Load is null for a missing file", platform::Load("no-such-library.dll") == nullptr);
    void* library = platform::Load(path);
    Check("Load loads a library", library != nullptr);
    Check("Find finds a function", platform::Find(library, "mapGetRscSegmentCount") != nullptr);
    Check("Find is null for a missing one", platform::Find(library, "mapOpenRsc") == nullptr);
    platform::Free(library);
    Check("Free frees", GetModuleHandleA("stand_in.dll") == nullptr);
}

void TestControlWord()
{
    Restart();
    Check("all exceptions are masked at first", Mask() == kAllMasked);
    platform::SetControlWord(kTrapsDivision);
    Check("SetControlWord installs the mask", Mask() == kTrapsDivision);
    platform::SetControlWord(kAllMasked);
    Check("SetControlWord takes it away", Mask() == kAllMasked);

    unsigned int word = 0;
    _controlfp_s(&word, _RC_UP, _MCW_RC);
    Check("ControlWord shows the rounding too", (platform::ControlWord() & _MCW_RC) == _RC_UP);
    platform::SetControlWord(kTrapsDivision | _RC_DOWN);
    Check("SetControlWord leaves rounding alone", (platform::ControlWord() & _MCW_RC) == _RC_UP);
    _controlfp_s(&word, _RC_NEAR, _MCW_RC);
    platform::SetControlWord(kAllMasked);

    MakeInexact();
    Check("an exception is pending", (_statusfp() & kInexact) != 0);
    platform::ClearExceptions();
    Check("ClearExceptions forgets it", _statusfp() == 0);
}

void TestGuard(const char* path)
{
    Restart();
    void* library = platform::Load(path);
    const auto change =
        reinterpret_cast<int (*)(void*)>(platform::Find(library, "mapGetRscSegmentCount"));
    const auto mask = reinterpret_cast<unsigned int (*)()>(platform::Find(library, "currentMask"));

    MakeInexact();
    {
        const CFloatingPointGuard guard;
        Check("first entry keeps what is pending", (_statusfp() & kInexact) != 0);
        Check("first entry keeps the caller's word", mask() == kAllMasked);
        Check("the library's function runs", change(nullptr) == 42);
        Check("the library changes its word", mask() == kTrapsDivision);
    }
    Check("exit gives the caller its word back", Mask() == kAllMasked);
    Check("exit clears what is pending", _statusfp() == 0);
    Check("exit saves the library's word", (savedControlWord & _MCW_EM) == kTrapsDivision);
    Check("exit sets the flag", isControlWordSaved);

    MakeInexact();
    {
        const CFloatingPointGuard guard;
        Check("second entry installs the library's word", mask() == kTrapsDivision);
        Check("second entry clears what is pending", _statusfp() == 0);
    }
    Check("second exit gives the caller its word back", Mask() == kAllMasked);
    platform::Free(library);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::printf("usage: platform_test STAND_IN\n");
        return 2;
    }
    TestLoading(argv[1]);
    TestControlWord();
    TestGuard(argv[1]);
    std::printf("%d failures\n", failures);
    return failures == 0 ? 0 : 1;
}
