// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/ITarget.h"

#include <memory>
#include <string>

namespace velorx {

/// A target that never takes its place. It finds fault with that place as a true one would, but all is
/// written in the system's folder for temporary files, and gone in the end.
class CTrialTarget final : public ITarget
{
public:
    /// `path` is as the shell hands it over. `made` outlives this object.
    CTrialTarget(ETargetKind what, std::string path, bool isNew, CTemporaries& made);
    ~CTrialTarget() override;

    std::string Begin(bool mayReplace) override;
    const std::string& WorkPath() const override;
    std::string Finish() override { return {}; }

private:
    std::string FindFault(bool mayReplace) const;

    ETargetKind kind;
    std::string name;
    bool isInNewFolder;
    CTemporaries& temporaries;
    std::string folder;
    std::unique_ptr<ITarget> inside; ///< A target in that folder.
};

} // namespace velorx
