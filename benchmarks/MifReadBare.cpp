// SPDX-License-Identifier: MIT
// mif_read_bare PATH: the least that any reader of a pair has to do. It finds the ends of lines and
// converts the numbers of both files. It keeps nothing, knows no object and makes no text.
#include <charconv>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

std::string Contents(const std::string& path)
{
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) {
        return {};
    }
    std::fseek(file, 0, SEEK_END);
    std::string bytes(static_cast<std::size_t>(std::ftell(file)), '\0');
    std::rewind(file);
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
    std::fclose(file);
    return bytes;
}

bool StartsNumber(char c)
{
    return (c >= '0' && c <= '9') || c == '-';
}

// Adds the numbers of a line that stand behind one of the separators.
double Sum(const char* p, const char* end, const char* separators, long& fields)
{
    double sum = 0;
    while (p < end) {
        if (StartsNumber(*p)) {
            double number = 0;
            p = std::from_chars(p, end, number).ptr;
            sum += number;
        }
        while (p < end && std::strchr(separators, *p) == nullptr) {
            ++p;
        }
        ++fields;
        ++p;
    }
    return sum;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        return 2;
    }
    double sum = 0;
    long fields = 0;
    for (const char* extension : {".mif", ".mid"}) {
        const std::string bytes = Contents(std::string(argv[1]) + extension);
        const char* const separators = std::strcmp(extension, ".mid") == 0 ? ";" : " (,";
        const char* p = bytes.data();
        const char* const end = p + bytes.size();
        while (p < end) {
            const auto* lineEnd =
                static_cast<const char*>(std::memchr(p, '\n', static_cast<std::size_t>(end - p)));
            lineEnd = lineEnd == nullptr ? end : lineEnd;
            sum += Sum(p, lineEnd, separators, fields);
            p = lineEnd + 1;
        }
    }
    std::printf("%ld fields, sum %.3f\n", fields, sum);
    return 0;
}
