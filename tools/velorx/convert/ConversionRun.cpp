// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/ConversionRun.h"

#include "tools/velorx/convert/ITarget.h"
#include "tools/velorx/convert/SourceFamily.h"
#include "tools/velorx/HostCodec.h"
#include "VelorExchange/foundation/FileError.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <exception>
#include <memory>
#include <mutex>
#include <new>
#include <stdexcept>
#include <system_error>
#include <thread>

namespace velorx {

namespace {

// The message names the file as the shell handed it over, not as the library decoded it.
std::string WriteFailure(const VelorExchange::FileError& error)
{
    switch (error.error) {
    case QFileDevice::OpenError:
    case QFileDevice::PermissionsError:
        return "a file for it cannot be opened";
    default:
        return "writing failed, perhaps because the disk is full";
    }
}

/// One conversion with what may go wrong on either side of it.
class CAttempt
{
public:
    CAttempt(const SPlannedFile& planned, SConvertedFile& outcome) : file(planned), result(outcome)
    {
    }

    void Run(const STargetFamily& family, const SConversionSettings& settings,
             CTemporaries& temporaries, VelorExchange::dxf::IDXFProgress* progress)
    {
        const SFamily* from = nullptr;
        if (!NoSourceFault(file.problem) || !NoSourceFault(FindSourceFamily(file.source, from))) {
            return;
        }
        const std::unique_ptr<ITarget> target = settings.isTrial
            ? MakeTrialTarget(file.targetKind, file.target, file.isInNewFolder, temporaries)
            : MakeTarget(file.targetKind, file.target, temporaries);
        if (!NoTargetFault(target->Begin(settings.mayReplace))) {
            return;
        }
        SConversionJob job;
        job.source = PathFromBytes(file.source);
        job.target = PathFromBytes(target->WorkPath());
        job.targetName = QString::fromUtf8(file.target.c_str());
        job.options = settings.options;
        job.progress = progress;
        if (NoSourceFault(Convert(from->name, family.name, job, result.report).toStdString())) {
            NoTargetFault(target->Finish());
        }
    }

    bool NoSourceFault(const std::string& fault)
    {
        return Keep(fault, "cannot convert " + file.source + ": ");
    }

    bool NoTargetFault(const std::string& fault)
    {
        return Keep(fault, "cannot write " + file.target + ": ");
    }

private:
    bool Keep(const std::string& fault, const std::string& what)
    {
        if (!fault.empty()) {
            result.error = what + fault;
        }
        return fault.empty();
    }

    const SPlannedFile& file;
    SConvertedFile& result;
};

// This thread is one of the `count`. Where the system gives fewer, those do it all.
void InThreads(std::size_t count, const std::function<void()>& work)
{
    std::vector<std::thread> threads;
    try {
        while (threads.size() + 1 < count) {
            threads.emplace_back(work);
        }
    } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch)
    }
    work();
    for (std::thread& thread : threads) {
        thread.join();
    }
}

} // namespace

SConvertedFile ConvertFile(const SPlannedFile& file, const STargetFamily& family,
                           const SConversionSettings& settings, CTemporaries& temporaries,
                           VelorExchange::dxf::IDXFProgress* progress)
{
    SConvertedFile result;
    result.source = file.source;
    result.target = file.target;
    CAttempt attempt(file, result);
    try {
        attempt.Run(family, settings, temporaries, progress);
    } catch (const VelorExchange::FileError& error) {
        attempt.NoTargetFault(WriteFailure(error));
    } catch (const std::length_error&) {
        attempt.NoSourceFault("a count in it is one that no file can have");
    } catch (const std::bad_alloc&) {
        attempt.NoSourceFault("there is not enough memory");
    } catch (const std::exception& error) {
        attempt.NoSourceFault(error.what());
    }
    return result;
}

std::vector<SConvertedFile> ConvertFiles(const SConversionPlan& plan,
                                         const SConversionSettings& settings,
                                         CTemporaries& temporaries,
                                         const std::function<void()>& onDone)
{
    std::vector<SConvertedFile> results(plan.files.size());
    std::atomic<std::size_t> next{0};
    std::mutex doneMutex;
    const auto work = [&] {
        for (std::size_t i = next++; i < plan.files.size(); i = next++) {
            results[i] = ConvertFile(plan.files[i], *plan.family, settings, temporaries, nullptr);
            const std::lock_guard<std::mutex> lock(doneMutex);
            onDone();
        }
    };
    InThreads(std::min(static_cast<std::size_t>(settings.threads), plan.files.size()), work);
    return results;
}

} // namespace velorx
