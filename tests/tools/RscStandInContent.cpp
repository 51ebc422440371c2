// SPDX-License-Identifier: MIT
// The classifier that the stand-in for the closed library shows to velorx. Texts are windows-1251.
#include "tests/pnr/classifier/StandIn.h"

namespace {

// A file called broken.rsc cannot be opened.
void RefuseBrokenFiles(const std::string& function)
{
    standin::State& state = standin::Current();
    if (function == "mapOpenRsc" && state.calls.find("broken.rsc") != std::string::npos) {
        state.rsc = 0;
    }
}

struct Content
{
    Content()
    {
        standin::State& state = standin::Current();
        state.layers = {"SYSTEM", "\xCB\xE5\xF1", "Water"}; // "Лес"
        state.objects = {{71111110, 1, 1, "\xC5\xEB\xFC", "S001"}, // "Ель"
                         {31120000, 0, 2, "River", "L002"},
                         {31120000, 1, 2, "Lake", "A003"}};
        state.semantics = {{1, 0, "First"},
                           {4, 1, "Height"},
                           {9, 0, "\xC8\xEC\xFF"}, // "Имя"
                           {12, 5, "Not listed"}};
        state.onCall = RefuseBrokenFiles;
    }
};
const Content content;

} // namespace
