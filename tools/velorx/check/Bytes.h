// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <string_view>

namespace velorx {

/// A copy of `text`, for what Qt does with bytes.
inline QByteArray Bytes(std::string_view text)
{
    return {text.data(), static_cast<int>(text.size())};
}

} // namespace velorx
