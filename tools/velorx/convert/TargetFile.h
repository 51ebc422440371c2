// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/ITarget.h"
#include "tools/velorx/convert/TargetPlace.h"

#include <string>

namespace velorx {

/// One file. It takes its place in one step, so that a process killed at any time leaves either the old
/// file or the new one.
class CTargetFile final : public ITarget
{
public:
    /// `path` is as the shell hands it over. `made` outlives this object.
    CTargetFile(std::string path, CTemporaries& made);
    ~CTargetFile() override;

    std::string Begin(bool mayReplace) override;
    const std::string& WorkPath() const override { return temporary; }
    std::string Finish() override;

private:
    std::string name;
    CTemporaries& temporaries;
    STargetPlace place;
    std::string temporary;
};

} // namespace velorx
