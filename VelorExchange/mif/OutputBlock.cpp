// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/OutputBlock_p.h"

namespace VelorExchange::mif {

void COutputBlock::Grow(std::size_t size)
{
    constexpr std::size_t kLeast = 4096;
    const auto used = static_cast<std::size_t>(end - begin.get());
    const std::size_t capacity = used * 2 + size + kLeast;
    std::unique_ptr<char[]> larger(new char[capacity]);
    if (used != 0) {
        std::memcpy(larger.get(), begin.get(), used);
    }
    begin = std::move(larger);
    end = begin.get() + used;
    limit = begin.get() + capacity;
}

} // namespace VelorExchange::mif
