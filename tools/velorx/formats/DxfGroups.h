// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfPlane.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace velorx {

/// The groups of one record of a drawing, in constant memory: of each code how often it came, its first
/// number, and whether a later one differs; of the codes that name something, the first text.
class CDxfGroups
{
public:
    static constexpr int kCodes = 1072;

    /// Begins with a new record.
    void Clear();

    /// Takes a group of the record and returns its number, 0 for one that is none. Codes beyond the last are
    /// passed over.
    double Add(int code, std::string_view value);

    int Count(int code) const { return At(code).count; }
    bool Has(int code) const { return Count(code) != 0; }

    /// The codes that came, each once.
    const std::vector<std::size_t>& Codes() const { return touched; }

    /// Whether all values of the code are numbers, and are 0.
    bool IsZero(int code) const { return At(code).isZero; }

    /// The first number of the code, 0 for one that is none.
    double Number(int code, double absent = 0.0) const;
    int Integer(int code, int absent = 0) const;

    /// The plane of an entity.
    EDxfPlane Plane() const;

    /// Whether the code came with different numbers.
    bool Varies(int code) const { return At(code).varies; }

    /// The first text of a code below 9; empty for an absent one and for all other codes.
    const std::string& Text(int code) const
    {
        static const std::string none;
        return code >= 0 && code < kTexts ? texts[static_cast<std::size_t>(code)] : none;
    }

private:
    struct SGroup
    {
        int count = 0;
        double first = 0.0;
        bool varies = false;
        bool isZero = true;
    };

    static constexpr int kTexts = 9;

    const SGroup& At(int code) const { return groups[static_cast<std::size_t>(code)]; }

    std::array<SGroup, kCodes> groups;
    std::vector<std::size_t> touched;
    std::array<std::string, kTexts> texts;
};

} // namespace velorx
