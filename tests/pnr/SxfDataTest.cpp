// SPDX-License-Identifier: MIT
#include "PnrLocalCodec.h"
#include "PnrRecorder.h"

namespace {

CPnrResult ReadData(const char* name, bool text)
{
    return ReadPnrFile(QStringLiteral(VELOREXCHANGE_TEST_DATA "/sxf/") + QLatin1String(name), text);
}

std::size_t Objects(const CPnrResult& result)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < result.log.size(); at = result.log.find('\n', at) + 1) {
        count += result.log[at] != ' ' ? 1 : 0;
    }
    return count;
}

} // namespace

// The seeds of the fuzz harnesses are sound files, but for the one whose name says otherwise.
TEST(SxfData, SeedsAreRead)
{
    const CLocalCodec codec("windows-1251");
    const std::pair<const char*, std::size_t> binary[] = {
        {"binary/elements.sxf", 6},   {"binary/relative-coordinates.sxf", 6},
        {"binary/drawings.sxf", 6},   {"binary/mixed-text.sxf", 1},
        {"binary/attributes.sxf", 1}, {"binary/short-without-records.sxf", 0}};
    for (const auto& [name, count] : binary) {
        const CPnrResult result = ReadData(name, false);
        EXPECT_TRUE(result.result) << name;
        EXPECT_EQ(Objects(result), count) << name << '\n' << result.log;
    }
    EXPECT_EQ(Objects(ReadData("text/kinds.txt", true)), 6U);
    EXPECT_EQ(Objects(ReadData("text/byte-order-mark.txt", true)), 1U);
    EXPECT_FALSE(ReadData("text/crlf-and-no-end.txt", true).result);
}
