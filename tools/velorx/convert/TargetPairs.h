// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/ITarget.h"

#include <string>

namespace velorx {

/// A folder of ".mif" and ".mid" pairs, one a layer. A folder that is not there yet takes its place in one
/// step. In one that is there, the pairs are added to what it holds one file after the other, in the order of
/// their names, and where one fails all that was there before comes back.
class CTargetPairs final : public ITarget
{
public:
    /// `path` is as the shell hands it over. `made` outlives this object.
    CTargetPairs(std::string path, CTemporaries& made);
    ~CTargetPairs() override;

    std::string Begin(bool mayReplace) override;
    const std::string& WorkPath() const override { return folder; }
    std::string Finish() override;

private:
    std::string MoveInto();

    std::string name;
    CTemporaries& temporaries;
    bool mayReplaceFiles = false;
    bool isThere = false; ///< The folder.
    std::string folder;
};

} // namespace velorx
