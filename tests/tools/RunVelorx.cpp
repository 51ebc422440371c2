// SPDX-License-Identifier: MIT
#include "tests/tools/RunVelorx.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace velorx::test {

namespace {

int ExitCodeOf(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void Redirect(const std::string& file, int descriptor)
{
    dup2(open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), descriptor);
}

[[noreturn]] void Execute(const std::vector<std::string>& arguments)
{
    std::vector<char*> argv = {const_cast<char*>("velorx")}; // execv takes what it won't change
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    if (chdir(VELOREXCHANGE_EXAMPLES) != 0) {
        _exit(126);
    }
    execv(VELORX_PROGRAM, argv.data());
    _exit(127);
}

std::string ReadTerminal(int terminal)
{
    std::string text;
    char buffer[4096];
    for (ssize_t size = 1; size > 0;) {
        size = read(terminal, buffer, sizeof buffer); // fails once the program has ended
        text.append(buffer, static_cast<std::size_t>(size > 0 ? size : 0));
    }
    close(terminal);
    return text;
}

} // namespace

SRun RunVelorx(const std::vector<std::string>& arguments, const char* out)
{
    const CTemporaryFolder folder;
    const std::string outFile = out != nullptr ? out : folder.path + "/out";
    const std::string errFile = folder.path + "/err";
    const pid_t child = fork();
    if (child == 0) {
        Redirect(outFile, STDOUT_FILENO);
        Redirect(errFile, STDERR_FILENO);
        Execute(arguments);
    }
    SRun run;
    run.exitCode = ExitCodeOf(child);
    run.out = out != nullptr ? std::string() : ReadFile(outFile);
    run.err = ReadFile(errFile);
    return run;
}

SRun RunVelorxOnTerminal(const std::vector<std::string>& arguments)
{
    const CTemporaryFolder folder;
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        Redirect(folder.path + "/out", STDOUT_FILENO);
        Execute(arguments);
    }
    SRun run;
    run.err = ReadTerminal(terminal);
    run.exitCode = ExitCodeOf(child);
    run.out = ReadFile(folder.path + "/out");
    return run;
}

CRunningVelorx::CRunningVelorx(const std::vector<std::string>& arguments,
                               const std::string& temporary)
    : child(fork())
{
    if (child == 0) {
        setenv("TMPDIR", temporary.c_str(), 1);
        Redirect("/dev/null", STDOUT_FILENO);
        Redirect("/dev/null", STDERR_FILENO);
        Execute(arguments);
    }
}

CRunningVelorx::~CRunningVelorx()
{
    if (IsAlive()) {
        Send(SIGKILL);
        EndingSignal();
    }
}

bool CRunningVelorx::IsAlive()
{
    hasEnded = hasEnded || waitpid(child, &status, WNOHANG) == child;
    return !hasEnded;
}

void CRunningVelorx::Send(int signal) const
{
    kill(child, signal);
}

int CRunningVelorx::EndingSignal()
{
    if (!hasEnded) {
        waitpid(child, &status, 0);
        hasEnded = true;
    }
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

namespace {

std::string MakeTemporaryFolder()
{
    std::string path = std::filesystem::temp_directory_path() / "velorx-test-XXXXXX";
    return mkdtemp(path.data()) != nullptr ? path : std::string();
}

} // namespace

CTemporaryFolder::CTemporaryFolder() : path(MakeTemporaryFolder()) { }

CTemporaryFolder::~CTemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

std::string CTemporaryFolder::Write(const std::string& name, const std::string& content) const
{
    const std::filesystem::path file = std::filesystem::path(path) / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file.string();
}

std::string ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

} // namespace velorx::test
