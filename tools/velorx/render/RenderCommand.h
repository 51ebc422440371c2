// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/Command.h"
#include "tools/velorx/render/Picture.h"

#include <string>
#include <vector>

namespace velorx {

class CTemporaries;
struct SFamily;

/// `velorx render IN OUT`: draws a file as a picture, in the format that the second name tells.
class CRenderCommand final : public ICommand
{
public:
    CLI::App* AddTo(CLI::App& app) override;
    EExit Run() override;

private:
    SPictureJob JobFor(const SFamily& family) const;
    EExit DrawInto(const SFamily& family, CTemporaries& temporaries) const;

    std::string source; ///< As the shell handed it over.
    std::string target; ///< As the shell handed it over.
    std::vector<std::string> layers;
    std::string size; ///< Empty for one that suits the drawing.
    std::string background = "white";
    bool force = false;
    bool quiet = false;
};

} // namespace velorx
