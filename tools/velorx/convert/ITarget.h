// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/convert/Temporaries.h"

#include <memory>
#include <string>

namespace velorx {

/// What a conversion leaves behind.
enum class ETargetKind {
    File, ///< One file.
    Pair, ///< A ".mif" and the ".mid" beside it.
    Pairs, ///< A folder of such pairs.
};

/// A target that is written whole or not at all: it is written under another name beside its place and
/// takes that place in the end, so that a run that fails leaves what was there. What is begun and does not
/// take its place is removed with the object.
class ITarget
{
public:
    ITarget() = default;
    ITarget(const ITarget&) = delete;
    ITarget(ITarget&&) = delete;
    ITarget& operator=(const ITarget&) = delete;
    ITarget& operator=(ITarget&&) = delete;
    virtual ~ITarget() = default;

    /// Makes what is to be written to; empty on success, otherwise why not. What is there already is in the
    /// way unless `mayReplace`; what is no ordinary file always is.
    virtual std::string Begin(bool mayReplace) = 0;

    /// Where to write, once begun: the path of an empty file, or of an empty folder for `Pairs`.
    virtual const std::string& WorkPath() const = 0;

    /// Puts what was written in its place; empty on success, otherwise why not, and then what was there
    /// is there again.
    virtual std::string Finish() = 0;
};

/// A target at the path `name`, as the shell hands it over. `temporaries` outlives it.
std::unique_ptr<ITarget> MakeTarget(ETargetKind kind, const std::string& name,
                                    CTemporaries& temporaries);

/// A target that does as one at `name` would but never takes its place: all is written in the system's
/// folder for temporary files, and gone in the end. `isInNewFolder` if the folder at that place would have
/// been made first.
std::unique_ptr<ITarget> MakeTrialTarget(ETargetKind kind, const std::string& name,
                                         bool isInNewFolder, CTemporaries& temporaries);

} // namespace velorx
