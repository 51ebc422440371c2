// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/classifier/RscPlatform_p.h"

#include "tests/pnr/classifier/ClassifierTest.h"

namespace VelorExchange::pnr {

using RscPlatformPosix = CClassifierTest;

TEST_F(RscPlatformPosix, LoadsFindsAndFrees)
{
    void* library = platform::Load(StandIn().toLocal8Bit().constData());
    ASSERT_NE(library, nullptr);
    EXPECT_NE(platform::Find(library, "mapOpenRsc"), nullptr);
    EXPECT_EQ(platform::Find(library, "mapOpenRscs"), nullptr);
    platform::Free(library);
    EXPECT_EQ(Calls(), "loaded\nfreed\n");
}

TEST_F(RscPlatformPosix, LoadIsNullForAMissingFile)
{
    EXPECT_EQ(platform::Load("/no/such/library.so"), nullptr);
}

TEST_F(RscPlatformPosix, LoadTakesNoLibraryOfTheSystemByItsBareName)
{
    EXPECT_EQ(platform::Load("libc.so.6"), nullptr);
}

TEST_F(RscPlatformPosix, ControlWordIsTheSetOfTraps)
{
    EXPECT_EQ(platform::ControlWord(), 0U);
    feenableexcept(FE_DIVBYZERO);
    EXPECT_EQ(platform::ControlWord(), static_cast<unsigned>(FE_DIVBYZERO));
}

TEST_F(RscPlatformPosix, SetControlWordAddsAndTakesAwayTraps)
{
    platform::SetControlWord(FE_DIVBYZERO | FE_OVERFLOW);
    EXPECT_EQ(fegetexcept(), FE_DIVBYZERO | FE_OVERFLOW);
    platform::SetControlWord(FE_INVALID);
    EXPECT_EQ(fegetexcept(), FE_INVALID);
    platform::SetControlWord(0);
    EXPECT_EQ(fegetexcept(), 0);
}

TEST_F(RscPlatformPosix, SetControlWordLeavesRoundingAlone)
{
    std::fesetround(FE_UPWARD);
    platform::SetControlWord(FE_DIVBYZERO);
    EXPECT_EQ(std::fegetround(), FE_UPWARD);
}

TEST_F(RscPlatformPosix, ClearExceptionsForgetsAllThatArePending)
{
    std::feraiseexcept(FE_ALL_EXCEPT);
    platform::ClearExceptions();
    EXPECT_EQ(std::fetestexcept(FE_ALL_EXCEPT), 0);
}

} // namespace VelorExchange::pnr
