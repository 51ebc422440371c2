// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/classifier/RscRecord_p.h"

#include <gtest/gtest.h>

namespace VelorExchange::pnr {

TEST(RscRecord, HasRoomForLongRecords)
{
    EXPECT_GE(CRscRecord::kSize, 4096U);
    CRscRecord record;
    std::memset(record.Clear(), 0x7F, 4096);
    EXPECT_EQ(record.Int(4092), 0x7F7F7F7F);
}

TEST(RscRecord, ClearZeroesAllOfIt)
{
    CRscRecord record;
    std::memset(record.Clear(), 0x7F, 4096);
    record.Clear();
    for (std::size_t offset = 0; offset < 4096; offset += 4) {
        ASSERT_EQ(record.Int(offset), 0) << offset;
    }
}

TEST(RscRecord, IsAlignedForAnyField)
{
    CRscRecord record;
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(record.Clear()) % alignof(double), 0U);
}

TEST(RscRecord, TextEndsAtItsZero)
{
    CRscRecord record;
    std::memcpy(static_cast<char*>(record.Clear()) + 32, "road\0rest", 9);
    EXPECT_EQ(record.Text(32, 4096), QStringLiteral("road"));
}

TEST(RscRecord, TextWithoutZeroEndsWithItsField)
{
    CRscRecord record;
    std::memset(record.Clear(), 'x', 4096);
    EXPECT_EQ(record.Text(24, 92).size(), 68);
    EXPECT_EQ(record.Text(32, 4096).size(), 4064);
}

TEST(RscRecord, TextOfZeroesIsEmpty)
{
    CRscRecord record;
    record.Clear();
    EXPECT_EQ(record.Text(24, 92), QString());
}

} // namespace VelorExchange::pnr
