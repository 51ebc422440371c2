// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/ITarget.h"
#include "tools/velorx/convert/TargetPlace.h"

#include <string>

namespace velorx {

/// A ".mif" with the ".mid" beside it. Both are written under their own names in a folder beside their place
/// and take that place one right behind the other; where the second fails the first comes back.
class CTargetPair final : public ITarget
{
public:
    /// `path` is that of the ".mif", as the shell hands it over. `made` outlives this object.
    CTargetPair(std::string path, CTemporaries& made);
    ~CTargetPair() override;

    std::string Begin(bool mayReplace) override;
    const std::string& WorkPath() const override { return workPath; }
    std::string Finish() override;

private:
    std::string name;
    CTemporaries& temporaries;
    STargetPlace table;
    STargetPlace rows;
    std::string folder;
    std::string workPath;
};

/// The ".mid" that belongs to the ".mif" `table`: "A.MID" to "A.MIF".
std::string RowsBeside(const std::string& table);

} // namespace velorx
