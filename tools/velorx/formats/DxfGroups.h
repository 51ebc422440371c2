// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace velorx {

/// The groups of one record of a drawing, in constant memory: of each code how often it came, its first
/// number, and whether a later one differs.
class CDxfGroups
{
public:
    static constexpr int kCodes = 1072;

    /// Begins with a new record.
    void Clear();

    /// Takes a group of the record. Codes beyond the last are passed over.
    void Add(int code, std::string_view value);

    int Count(int code) const { return groups[static_cast<std::size_t>(code)].count; }
    bool Has(int code) const { return Count(code) != 0; }

    /// The first number of the code, 0 for one that is none.
    double Number(int code, double absent = 0.0) const;
    int Integer(int code, int absent = 0) const;

    /// Whether the code came with different numbers.
    bool Varies(int code) const { return groups[static_cast<std::size_t>(code)].varies; }

    /// The first text of group 2.
    const std::string& Name() const { return name; }

private:
    struct SGroup
    {
        int count = 0;
        double first = 0.0;
        bool varies = false;
    };

    std::array<SGroup, kCodes> groups;
    std::vector<std::size_t> touched;
    std::string name;
};

} // namespace velorx
