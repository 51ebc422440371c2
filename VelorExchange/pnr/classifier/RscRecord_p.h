// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace VelorExchange::pnr {

/// Room for a record that the closed library fills. Its full size is the library's affair, so there
/// is more room than any known record takes.
class CRscRecord
{
public:
    static constexpr std::size_t kSize = 4096;

    /// Zeroes the record and gives the address at which the library fills it.
    void* Clear()
    {
        bytes.fill(0);
        return bytes.data();
    }

    /// The integer at `offset`, in the machine's own byte order.
    qint32 Int(std::size_t offset) const
    {
        qint32 value = 0;
        std::memcpy(&value, bytes.data() + offset, sizeof(value));
        return value;
    }

    /// The local 8-bit text from `begin` to a zero, at most up to `end`.
    QString Text(std::size_t begin, std::size_t end) const
    {
        const char* first = bytes.data() + begin;
        const char* zero = std::find(first, bytes.data() + end, '\0');
        return QString::fromLocal8Bit(first, static_cast<int>(zero - first));
    }

private:
    alignas(std::max_align_t) std::array<char, kSize> bytes{};
};

/// Where the fields of the record of `mapGetRscObject` lie. The name's end is not known, so it ends
/// with its zero.
struct RscObjectLayout
{
    static constexpr std::size_t kCode = 4;
    static constexpr std::size_t kKind = 8;
    static constexpr std::size_t kLayer = 12;
    static constexpr std::size_t kName = 32;
    static constexpr std::size_t kNameEnd = CRscRecord::kSize;
};

/// Where the fields of the record of `mapGetRscSemanticExByCode` lie. The code in front of them is
/// what the record was asked for by.
struct RscSemanticLayout
{
    static constexpr std::size_t kKind = 4;
    static constexpr std::size_t kName = 24;
    static constexpr std::size_t kNameEnd = 92;
    static constexpr std::size_t kLinkedList = 92; ///< Not 0: its values stand in a list.
};

} // namespace VelorExchange::pnr
