// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace velorx {

/// What a line behind an object turns out to be.
enum class EMifClause {
    None, ///< No clause.
    Good,
    Bad, ///< A clause that cannot be taken apart.
};

/// Looks at a line that starts with `word`, in lower case.
EMifClause CheckMifClause(const std::string& word, std::string_view line);

} // namespace velorx
