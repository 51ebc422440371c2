// SPDX-License-Identifier: MIT
// The least that any reader of a binary map has to do: add up all bytes for the checksum, go from
// record to record, and copy what each holds out of the file.
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

std::int32_t Int(const char* p)
{
    std::int32_t value = 0;
    std::memcpy(&value, p, sizeof value);
    return value;
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

    std::int32_t checksum = 0;
    for (const char c : bytes) {
        checksum += static_cast<signed char>(c);
    }
    const char* p = bytes.data() + 452;
    const char* const end = bytes.data() + bytes.size();
    std::vector<double> values;
    double sum = 0;
    long records = 0;
    while (p + 32 <= end) {
        const std::int32_t length = Int(p + 4);
        values.resize(static_cast<std::size_t>(length - 32) / sizeof(double));
        std::memcpy(values.data(), p + 32, values.size() * sizeof(double));
        sum += values.empty() ? 0 : values.front();
        ++records;
        p += length;
    }
    std::printf("%ld records, checksum %d, sum %.3f\n", records, checksum, sum);
    return 0;
}
