// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/ConvertCommand.h"

#include "tools/velorx/convert/ConversionPlan.h"
#include "tools/velorx/convert/ConversionSummary.h"
#include "tools/velorx/convert/Interruption.h"
#include "tools/velorx/convert/SourceFamily.h"
#include "tools/velorx/convert/TargetFile.h"
#include "tools/velorx/convert/TargetFolder.h"
#include "tools/velorx/convert/TargetPlace.h"
#include "tools/velorx/FileCount.h"
#include "tools/velorx/HostCodec.h"
#include "tools/velorx/Output.h"
#include "tools/velorx/ProgressBar.h"

#include <QByteArray>
#include <QFile>

#include <sys/resource.h>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

namespace velorx {

namespace {

constexpr int kMostDecimals = 15;
constexpr int kMostThreads = 256;

/// A version of drawings as people call it, and its number.
constexpr std::pair<const char*, int> kVersions[] = {{"2000", 1015}, {"2004", 1018}};

int VersionNumber(const std::string& name)
{
    for (const auto& [known, number] : kVersions) {
        if (name == known) {
            return number;
        }
    }
    return SConversionOptions().drawingVersion;
}

// The parser's own check tells the whole range of the type.
std::string CheckPositive(const std::string& text)
{
    bool isNumber = false;
    const double number = QByteArray::fromStdString(text).toDouble(&isNumber);
    return isNumber && std::isfinite(number) && number > 0.0 ? std::string()
                                                             : text + " is no number above 0";
}

/// The parser knows one list of names where people see two things in it.
class CUsage final : public CLI::Formatter
{
public:
    std::string make_usage(const CLI::App* /*app*/, std::string name) const override
    {
        return "Usage: " + name + " [OPTIONS] IN... OUT\n";
    }
};

bool IsSamePath(const std::string& one, const std::string& other)
{
    std::error_code error;
    const auto path = std::filesystem::weakly_canonical(one, error);
    return !error && path == std::filesystem::weakly_canonical(other, error) && !error;
}

bool IsAmong(const std::vector<std::string>& paths, const std::string& name)
{
    return std::any_of(paths.begin(), paths.end(),
                       [&name](const std::string& path) { return IsSamePath(name, path); });
}

// A folder of tables has one open for each layer, and systems tend to allow a thousand where they could do more.
void AllowManyFiles()
{
    rlimit limit = {};
    if (getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limit);
    }
}

bool IsInPlan(const std::string& name, const SConversionPlan& plan)
{
    return std::any_of(plan.files.begin(), plan.files.end(), [&name](const SPlannedFile& file) {
        return IsAmong(WithRows(file.source), name) || IsAmong(WithRows(file.target), name);
    });
}

// What can be known of it ahead of a long run, which may make the folder that it goes into.
std::string FindFaultOfReport(const std::string& name, const SConversionPlan& plan, bool mayReplace)
{
    if (IsInPlan(name, plan)) {
        return "it is another file of this run";
    }
    STargetPlace place;
    const std::string fault = FindPlace(name, mayReplace, place);
    const std::string folder = FolderOf(place.path);
    if (!fault.empty() || IsSamePath(folder, plan.folder) || IsInPlan(folder, plan)) {
        return fault;
    }
    return FindFaultOfFolder(folder);
}

} // namespace

CLI::App* CConvertCommand::AddTo(CLI::App& app)
{
    CLI::App* command = app.add_subcommand("convert", "Write files again, or in another format");
    command->formatter(std::make_shared<CUsage>());
    AddFileOptions(*command);
    AddValueOptions(*command);
    return command;
}

void CConvertCommand::AddFileOptions(CLI::App& command)
{
    command
        .add_option("IN", names,
                    "The files or folders to read (" + ConvertibleExtensions()
                        + "), and last the file or folder to write")
        ->required()
        ->type_name("")
        ->option_text("... OUT");
    command.add_option("--to", extension, "Format to write, where the ending of OUT does not tell")
        ->type_name("dxf|mif|sxf|txt")
        ->check(CLI::IsMember(TargetExtensions(), CLI::ignore_case), "", "");
    command
        .add_option("--report", reportName,
                    "Write the report into a file too, as JSON if its name ends in .json")
        ->type_name("FILE");
    command.add_flag("--force", settings.mayReplace, "Replace files that exist");
    command.add_flag("--dry-run", settings.isTrial, "Do and tell all, but leave no target");
    command.add_flag("--quiet", quiet, "Print nothing but errors");
}

void CConvertCommand::AddValueOptions(CLI::App& command)
{
    command.add_option("--version", version, "Version of a drawing to write")
        ->type_name("2000|2004")
        ->check(CLI::IsMember({"2000", "2004"}), "", "")
        ->capture_default_str();
    command.add_option("--precision", settings.options.precision, "Decimals of numbers, 0 to 15")
        ->type_name("N")
        ->check(CLI::Range(0, kMostDecimals), "", "")
        ->capture_default_str();
    command
        .add_option("--chord", settings.options.chord,
                    "Curves may be off by this much where they become chords, in units of IN")
        ->type_name("D")
        ->check(CheckPositive, "", "")
        ->capture_default_str();
    command
        .add_option("--scale", settings.options.scale,
                    "Scale 1:N of SXF maps, where IN tells none or another is wanted")
        ->type_name("N")
        ->check(CheckPositive, "", "");
    command.add_option("--jobs", settings.threads, "Convert so many files at once")
        ->type_name("N")
        ->check(CLI::Range(1, kMostThreads), "", "")
        ->capture_default_str();
}

EExit CConvertCommand::Run()
{
    settings.options.drawingVersion = VersionNumber(version);
    if (names.size() < 2) {
        PrintError("there is no file to write behind " + names.front()
                   + "\nvelorx convert --help tells how it is used.");
        return kExitUsage;
    }
    const std::vector<std::string> sources(names.begin(), names.end() - 1);
    const SConversionPlan plan = PlanConversion(sources, names.back(), extension);
    if (!plan.usageFault.empty()) {
        PrintError(plan.usageFault);
        return kExitUsage;
    }
    // A file that may not grow any more is then a file that cannot be written, not the end.
    std::signal(SIGXFSZ, SIG_IGN);
    AllowManyFiles();
    CTemporaries temporaries;
    const CInterruption interruption([&temporaries] { temporaries.Abandon(); });
    return RunPlan(plan, temporaries);
}

EExit CConvertCommand::RunPlan(const SConversionPlan& plan, CTemporaries& temporaries)
{
    std::string fault = reportName.empty()
        ? std::string()
        : FindFaultOfReport(reportName, plan, settings.mayReplace);
    if (!fault.empty()) {
        PrintError("cannot write " + reportName + ": " + fault);
        return kExitFailed;
    }
    CTargetFolder folder(plan.folder);
    fault = folder.Begin(settings.isTrial);
    if (!fault.empty()) {
        PrintError("cannot write " + plan.folder + ": " + fault);
        return kExitFailed;
    }
    const std::vector<SConvertedFile> files = ConvertAll(plan, temporaries);
    for (const SConvertedFile& file : files) {
        if (!file.error.empty()) {
            PrintError(file.error);
        }
    }
    const bool isDone = std::all_of(files.begin(), files.end(),
                                    [](const SConvertedFile& file) { return file.error.empty(); });
    return Tell(files, temporaries) && isDone ? kExitDone : kExitFailed;
}

std::vector<SConvertedFile> CConvertCommand::ConvertAll(const SConversionPlan& plan,
                                                        CTemporaries& temporaries)
{
    const bool isShown = IsTerminal() && !quiet;
    if (plan.files.size() == 1) {
        std::optional<CProgressBar> bar;
        if (isShown) {
            bar.emplace(TerminalProgressBar());
        }
        return {ConvertFile(plan.files.front(), *plan.family, settings, temporaries,
                            bar ? &*bar : nullptr)};
    }
    CFileCount count = TerminalFileCount(plan.files.size());
    std::vector<SConvertedFile> files =
        ConvertFiles(plan, settings, temporaries, [isShown, &count] {
            if (isShown) {
                count.Add();
            }
        });
    count.Finish();
    return files;
}

bool CConvertCommand::Tell(const std::vector<SConvertedFile>& files,
                           CTemporaries& temporaries) const
{
    const std::string fault = reportName.empty() ? "" : WriteReport(files, temporaries);
    if (!fault.empty()) {
        PrintError("cannot write " + reportName + ": " + fault);
    }
    const bool hasText = files.size() > 1 || files.front().error.empty();
    const bool isPrinted = quiet || !hasText || Print(SummaryText(files));
    return isPrinted && fault.empty();
}

std::string CConvertCommand::WriteReport(const std::vector<SConvertedFile>& files,
                                         CTemporaries& temporaries) const
{
    CTargetFile target(reportName, temporaries);
    const std::string fault = target.Begin(settings.mayReplace);
    if (!fault.empty()) {
        return fault;
    }
    const bool isJson = std::filesystem::path(reportName).extension() == ".json";
    const QByteArray text = isJson ? SummaryJson(files) : SummaryText(files);
    QFile file(PathFromBytes(target.WorkPath()));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush()) {
        return file.errorString().toStdString();
    }
    file.close();
    return target.Finish();
}

} // namespace velorx
