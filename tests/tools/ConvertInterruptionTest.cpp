// SPDX-License-Identifier: MIT
// What is left of a conversion that is ended from outside.
#include "tests/tools/ConvertSupport.h"
#include "tests/tools/RunVelorx.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

namespace velorx::test {

namespace {

using Strings = std::vector<std::string>;

constexpr int kManyPoints = 400000; // 18 MB

bool IsUnderWay(const std::string& folder)
{
    for (const std::string& name : NamesIn(folder)) {
        if (name.find(".tmp") != std::string::npos) {
            return true;
        }
    }
    return false;
}

/// A large drawing is converted over an older one, and `signal` comes while it is. On a busy machine a run may
/// be over before the signal is sent; then there is another one.
class CInterrupted
{
public:
    explicit CInterrupted(int signal, const std::string& name = "a.dxf")
    {
        constexpr int kAttempts = 20;
        const std::string source = in.Write("a.dxf", LargeDrawing(kManyPoints));
        for (int i = 0; i < kAttempts && endedBy != signal; ++i) {
            for (const std::string& made : NamesIn(out.path)) {
                std::filesystem::remove(out.path + "/" + made);
            }
            target = out.Write(name, "old");
            endedBy = EndedBy(signal, source);
        }
    }

    CTemporaryFolder in;
    CTemporaryFolder out;
    CTemporaryFolder temporary;
    std::string target;
    int endedBy = 0;

private:
    int EndedBy(int signal, const std::string& source) const
    {
        CRunningVelorx run({"convert", "--force", source, target}, temporary.path);
        while (run.IsAlive() && !IsUnderWay(out.path)) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50)); // so that it is in the middle
        run.Send(signal);
        return run.EndingSignal();
    }
};

} // namespace

TEST(ConvertInterruption, AKillLeavesTheOldTargetWhole)
{
    const CInterrupted run(SIGKILL);
    EXPECT_EQ(run.endedBy, SIGKILL);
    EXPECT_EQ(ReadFile(run.target), "old");
}

TEST(ConvertInterruption, WhatAKillLeavesIsNotInTheWayOfTheNextRun)
{
    const CInterrupted run(SIGKILL);
    EXPECT_EQ(
        RunVelorx({"convert", "--force", "data/survey-plan.dxf", run.target, "--quiet"}).exitCode,
        0);
    EXPECT_NE(ReadFile(run.target), "old");
}

TEST(ConvertInterruption, ARequestToEndRemovesWhatWasBegun)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const CInterrupted run(signal);
        EXPECT_EQ(run.endedBy, signal);
        EXPECT_EQ(ReadFile(run.target), "old");
        EXPECT_EQ(NamesIn(run.out.path), Strings({"a.dxf"}));
        EXPECT_EQ(NamesIn(run.temporary.path), Strings());
    }
}

TEST(ConvertInterruption, HoldsForThePairAndForMapsToo)
{
    for (const char* name : {"a.mif", "a.sxf", "a.txt"}) {
        for (const int signal : {SIGKILL, SIGTERM}) {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(signal));
            const CInterrupted run(signal, name);
            EXPECT_EQ(run.endedBy, signal);
            EXPECT_EQ(ReadFile(run.target), "old");
            if (signal == SIGTERM) {
                EXPECT_EQ(NamesIn(run.out.path), Strings({name}));
                EXPECT_EQ(NamesIn(run.temporary.path), Strings());
            }
        }
    }
}

TEST(ConvertInterruption, ALimitOfTheSystemIsAFailureAndNotTheEnd)
{
    const CTemporaryFolder folder;
    const std::string source = folder.Write("a.dxf", LargeDrawing(20000));
    rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit small = before;
    small.rlim_cur = 200000;
    setrlimit(RLIMIT_FSIZE, &small);
    const SRun run = RunVelorx({"convert", source, folder.path + "/b.dxf"});
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err,
              "velorx: cannot write " + folder.path
                  + "/b.dxf: writing failed, perhaps because the disk is full\n");
    EXPECT_EQ(NamesIn(folder.path), Strings({"a.dxf"}));
}

} // namespace velorx::test
