// SPDX-License-Identifier: MIT
// The least that any reader of text drawings has to do: find the ends of lines, convert the codes, and
// convert the values that are numbers. It keeps nothing and knows no object.
#include <charconv>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

bool IsReal(int code)
{
    return (code >= 10 && code <= 59) || (code >= 210 && code <= 239);
}

bool IsInteger(int code)
{
    return (code >= 60 && code <= 99) || (code >= 170 && code <= 179)
        || (code >= 270 && code <= 289) || (code >= 370 && code <= 389);
}

const char* SkipBlanks(const char* p)
{
    while (*p == ' ') {
        ++p;
    }
    return p;
}

} // namespace

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
    double sum = 0;
    long pairs = 0;
    while (p < end) {
        const auto* codeEnd =
            static_cast<const char*>(std::memchr(p, '\n', static_cast<std::size_t>(end - p)));
        if (codeEnd == nullptr) {
            break;
        }
        int code = 0;
        std::from_chars(SkipBlanks(p), codeEnd, code);
        const char* const value = codeEnd + 1;
        const auto* valueEnd = static_cast<const char*>(
            std::memchr(value, '\n', static_cast<std::size_t>(end - value)));
        if (valueEnd == nullptr) {
            break;
        }
        if (IsReal(code)) {
            double number = 0;
            std::from_chars(SkipBlanks(value), valueEnd, number);
            sum += number;
        } else if (IsInteger(code)) {
            int number = 0;
            std::from_chars(SkipBlanks(value), valueEnd, number);
            sum += number;
        }
        ++pairs;
        p = valueEnd + 1;
    }
    std::printf("%ld pairs, sum %.3f\n", pairs, sum);
    return 0;
}
