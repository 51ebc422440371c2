// SPDX-License-Identifier: MIT
// A library for the test under wine: one of its functions leaves another control word behind.
#include <float.h>

extern "C" __declspec(dllexport) int mapGetRscSegmentCount(void*)
{
    unsigned int word = 0;
    _controlfp_s(&word, 0, _EM_ZERODIVIDE); // traps divisions by zero from now on
    return 42;
}

extern "C" __declspec(dllexport) unsigned int currentMask()
{
    unsigned int word = 0;
    _controlfp_s(&word, 0, 0);
    return word & _MCW_EM;
}
