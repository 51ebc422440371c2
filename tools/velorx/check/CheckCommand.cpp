// SPDX-License-Identifier: MIT
#include "tools/velorx/check/CheckCommand.h"

#include "tools/velorx/check/IChecker.h"
#include "tools/velorx/formats/SxfHeader.h"
#include "tools/velorx/HostCodec.h"
#include "tools/velorx/info/Family.h"
#include "tools/velorx/Output.h"
#include "tools/velorx/ProgressBar.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <optional>

namespace velorx {

namespace {

constexpr char kMap[] = "SXF";

// A map without the binary form's mark is one in text form if it starts like one.
bool IsTextMap(const SFamily& family, const QByteArray& head)
{
    return std::strcmp(family.name, kMap) == 0 && IsSxfTextContent(head);
}

QString Check(const QString& path, SCheckedFile& result)
{
    QString fault = WhyNoFile(path);
    if (!fault.isEmpty()) {
        return fault;
    }
    QFile probe(path);
    if (!probe.open(QIODevice::ReadOnly)) {
        return QStringLiteral("it cannot be opened: ") + probe.errorString();
    }
    const QByteArray head = probe.read(kHeadSize);
    probe.close();
    const SFamily* family = FindFamily(path, head);
    if (family == nullptr) {
        return WhyNoFamily(path);
    }
    result.description = family->description;
    const auto checker = MakeChecker(family->name, IsTextMap(*family, head));
    if (checker == nullptr) {
        return QStringLiteral("a %1 can be looked into by Panorama's own library alone")
            .arg(QLatin1String(family->description));
    }
    std::optional<CProgressBar> bar;
    if (IsTerminal()) {
        bar.emplace(TerminalProgressBar());
    }
    return checker->Check(path, result.findings, bar ? &*bar : nullptr);
}

} // namespace

CLI::App* CCheckCommand::AddTo(CLI::App& app)
{
    CLI::App* command = app.add_subcommand("check", "Say what readers will stumble over");
    command->add_option("FILE", names, "The files: " + KnownExtensions().toStdString())
        ->required()
        ->type_name("");
    command->add_flag("--json", json, "Print JSON for programs");
    return command;
}

EExit CCheckCommand::Run()
{
    std::vector<SCheckedFile> files;
    bool isPrinted = true;
    for (const std::string& name : names) {
        SCheckedFile& file = files.emplace_back();
        file.name = name;
        file.error = Check(PathFromBytes(name), file).toStdString();
        if (!file.error.empty()) {
            PrintError("cannot check " + name + ": " + file.error);
        } else if (!json) {
            isPrinted = Print(CheckText(file)) && isPrinted;
        }
    }
    if (json) {
        isPrinted = Print(CheckJson(files));
    }
    const bool isSound = std::all_of(files.begin(), files.end(),
                                     [](const SCheckedFile& file) { return file.IsSound(); });
    return isPrinted && isSound ? kExitDone : kExitFailed;
}

} // namespace velorx
