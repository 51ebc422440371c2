// SPDX-License-Identifier: MIT
// Runs a fuzz harness over files and folders without a fuzzer, so that the seeds are ordinary tests.
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void RunFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

int Run(const std::filesystem::path& path)
{
    if (!std::filesystem::is_directory(path)) {
        RunFile(path);
        return 1;
    }
    int count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
        if (entry.is_regular_file()) {
            RunFile(entry.path());
            ++count;
        }
    }
    return count;
}

} // namespace

int main(int argc, char** argv)
{
    int count = 0;
    try {
        for (int i = 1; i < argc; ++i) {
            count += Run(argv[i]);
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
