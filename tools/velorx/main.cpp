// SPDX-License-Identifier: MIT
// velorx, the command line host of VelorExchange: parses the command line and runs one command.
#include "tools/velorx/check/CheckCommand.h"
#include "tools/velorx/convert/ConvertCommand.h"
#include "tools/velorx/HostCodec.h"
#include "tools/velorx/info/InfoCommand.h"
#include "tools/velorx/Output.h"
#include "tools/velorx/render/RenderCommand.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <memory>
#include <utility>
#include <vector>

namespace {

using velorx::ICommand;

constexpr char kFooter[] =
    "Exit codes: 0 done, 1 a file could not be read or written whole, or has\n"
    "faults, 2 wrong usage.";

std::string CheckCodePage(const std::string& name)
{
    return velorx::IsCodePage(name) ? std::string()
                                    : "unknown code page " + name
            + "; known are windows-1251, IBM866, KOI8-R, UTF-8 and many others";
}

// "info, convert, check or render".
std::string NamesOfCommands(const CLI::App& app)
{
    const auto commands = app.get_subcommands([](const CLI::App*) { return true; });
    std::string names;
    for (const CLI::App* command : commands) {
        const bool isLast = command == commands.back();
        names += (names.empty() ? "" : isLast ? " or " : ", ") + command->get_name();
    }
    return names;
}

std::string WhatIsWrong(const CLI::App& app, const CLI::Error& error)
{
    const std::vector<std::string> rest = app.remaining();
    if (!app.get_subcommands().empty() || error.get_name() != "RequiredError") {
        return error.what();
    }
    if (rest.empty()) {
        return "a command is missing: " + NamesOfCommands(app);
    }
    return rest.front().front() == '-'
        ? "there is no option " + rest.front()
        : "there is no command " + rest.front() + ", only " + NamesOfCommands(app);
}

// The help to look at is that of the command, once there is one.
std::string FailureMessage(const CLI::App* app, const CLI::Error& error)
{
    std::string program = "velorx";
    for (const CLI::App* command : app->get_subcommands()) {
        program += ' ' + command->get_name();
    }
    return "velorx: " + WhatIsWrong(*app, error) + '\n' + program
        + " --help tells how it is used.\n";
}

/// The commands, with what each of them has added to the parser.
using CCommands = std::vector<std::pair<std::unique_ptr<ICommand>, CLI::App*>>;

// The option stands with each command and ahead of it, so that either order works.
void AddCodePage(CLI::App& app, std::string& codePage)
{
    app.add_option("--codepage", codePage, "Code page of 8-bit text in files")
        ->type_name("NAME")
        ->check(CheckCodePage, "", "")
        ->capture_default_str();
}

CCommands AddCommands(CLI::App& app)
{
    CCommands commands;
    commands.emplace_back(std::make_unique<velorx::CInfoCommand>(), nullptr);
    commands.emplace_back(std::make_unique<velorx::CConvertCommand>(), nullptr);
    commands.emplace_back(std::make_unique<velorx::CCheckCommand>(), nullptr);
    commands.emplace_back(std::make_unique<velorx::CRenderCommand>(), nullptr);
    for (auto& [command, parser] : commands) {
        parser = command->AddTo(app);
        parser->group("Commands");
    }
    return commands;
}

int Run(int argc, char** argv)
{
    CLI::App app("velorx reads drawings and maps, says what is in them and writes them again.",
                 "velorx");
    std::string codePage = "windows-1251";
    app.set_version_flag("--version", "velorx " VELORX_VERSION);
    app.footer(kFooter);
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    app.failure_message(FailureMessage);
    AddCodePage(app, codePage);
    const CCommands commands = AddCommands(app);
    for (const auto& entry : commands) {
        AddCodePage(*entry.second, codePage);
        entry.second->footer(kFooter);
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? velorx::kExitDone : velorx::kExitUsage;
    }
    velorx::SetCodePage(codePage);
    for (const auto& [command, parser] : commands) {
        if (parser->parsed()) {
            return command->Run();
        }
    }
    return velorx::kExitUsage;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        velorx::PrintError(error.what());
        return velorx::kExitFailed;
    }
}
