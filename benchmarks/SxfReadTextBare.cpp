// SPDX-License-Identifier: MIT
// The least that any reader of the text form has to do: find the ends of lines and convert the lines
// that are numbers, keeping the coordinates of an object.
#include <charconv>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    std::FILE* file = argc > 1 ? std::fopen(argv[1], "rb") : nullptr;
    if (file == nullptr) {
        return 2;
    }
    std::fseek(file, 0, SEEK_END);
    std::string bytes(static_cast<std::size_t>(std::ftell(file)), '\0');
    std::rewind(file);
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
    std::fclose(file);

    const char* p = bytes.data();
    const char* const end = p + bytes.size();
    std::vector<double> values;
    double sum = 0;
    long lines = 0;
    while (p < end) {
        const auto* lineEnd =
            static_cast<const char*>(std::memchr(p, '\n', static_cast<std::size_t>(end - p)));
        if (lineEnd == nullptr) {
            lineEnd = end;
        }
        if (*p == '.') {
            sum += values.empty() ? 0 : values.front();
            values.clear();
        } else {
            double number = 0;
            while (p < lineEnd) {
                const auto [stop, error] = std::from_chars(p, lineEnd, number);
                if (error != std::errc()) {
                    break;
                }
                values.push_back(number);
                p = stop + 1;
            }
        }
        ++lines;
        p = lineEnd + 1;
    }
    std::printf("%ld lines, sum %.3f\n", lines, sum);
    return 0;
}
