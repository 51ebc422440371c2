// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/ConvertCommand.h"

#include "tools/velorx/convert/TargetFile.h"
#include "tools/velorx/HostCodec.h"
#include "tools/velorx/Output.h"
#include "tools/velorx/ProgressBar.h"
#include "VelorExchange/foundation/FileError.h"

#include <QFile>
#include <QFileInfo>

#include <optional>
#include <utility>

namespace velorx {

namespace {

constexpr int kMostDecimals = 15;

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

} // namespace

CLI::App* CConvertCommand::AddTo(CLI::App& app)
{
    CLI::App* command = app.add_subcommand("convert", "Write a file again, or in another format");
    command->add_option("IN", source, "The file to read: " + KnownExtensions().toStdString())
        ->required()
        ->type_name("");
    command->add_option("OUT", target, "The file to write; its ending tells the format")
        ->required()
        ->type_name("");
    command->add_option("--version", version, "Version of a drawing to write")
        ->type_name("2000|2004")
        ->check(CLI::IsMember({"2000", "2004"}), "", "")
        ->capture_default_str();
    command->add_option("--precision", precision, "Decimals of numbers in a drawing, 0 to 15")
        ->type_name("N")
        ->check(CLI::Range(0, kMostDecimals), "", "")
        ->capture_default_str();
    command->add_flag("--force", force, "Replace OUT if it exists");
    return command;
}

QString CConvertCommand::FindWay(CConversion& conversion) const
{
    QFile probe(PathFromBytes(source));
    if (QFileInfo(probe.fileName()).isDir()) {
        return QStringLiteral("it is a folder, not a file");
    }
    if (!probe.open(QIODevice::ReadOnly)) {
        return QStringLiteral("it cannot be opened: ") + probe.errorString();
    }
    const SFamily* from = FindFamily(probe.fileName(), probe.read(kHeadSize));
    if (from == nullptr) {
        return QStringLiteral("it is of no kind that velorx reads (%1)").arg(KnownExtensions());
    }
    const SFamily* to = FindFamily(PathFromBytes(target), QByteArray());
    conversion = to != nullptr ? FindConversion(*from, *to) : nullptr;
    if (conversion == nullptr) {
        return QStringLiteral("a %1 cannot be written under a name like that of the target")
            .arg(QLatin1String(from->description));
    }
    return {};
}

QString CConvertCommand::Convert(CConversion conversion, const std::string& file,
                                 CConversionReport& report) const
{
    SConversionJob job;
    job.source = PathFromBytes(source);
    job.target = PathFromBytes(file);
    job.targetName = QString::fromUtf8(target.c_str());
    job.options = {VersionNumber(version), precision};
    std::optional<CProgressBar> bar;
    if (IsTerminal()) {
        bar.emplace(TerminalProgressBar());
        job.progress = &*bar;
    }
    return conversion(job, report);
}

EExit CConvertCommand::Run()
{
    CConversion conversion = nullptr;
    const QString problem = FindWay(conversion);
    if (!problem.isEmpty()) {
        PrintError("cannot convert " + source + ": " + problem.toStdString());
        return kExitFailed;
    }
    CTargetFile file(target);
    std::string failure = file.Begin(force);
    CConversionReport report;
    if (failure.empty()) {
        try {
            const QString unread = Convert(conversion, file.Temporary(), report);
            if (!unread.isEmpty()) {
                PrintError("cannot convert " + source + ": " + unread.toStdString());
                return kExitFailed;
            }
            failure = file.Finish();
        } catch (const VelorExchange::FileError& error) {
            failure = WriteFailure(error);
        }
    }
    if (!failure.empty()) {
        PrintError("cannot write " + target + ": " + failure);
        return kExitFailed;
    }
    return Print(report.ToText().toUtf8()) ? kExitDone : kExitFailed;
}

} // namespace velorx
