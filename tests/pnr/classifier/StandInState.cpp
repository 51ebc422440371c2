// SPDX-License-Identifier: MIT
#include "tests/pnr/classifier/StandIn.h"

namespace standin {

State& Current()
{
    static State state;
    return state;
}

} // namespace standin
