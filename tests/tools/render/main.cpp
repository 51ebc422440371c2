// SPDX-License-Identifier: MIT
#include "tools/velorx/HostCodec.h"
#include "tools/velorx/render/PictureSession.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    velorx::SetCodePage("windows-1251");
    const velorx::CPictureSession session; // as long as all pictures
    return RUN_ALL_TESTS();
}
