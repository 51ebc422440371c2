// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/ITarget.h"
#include "tools/velorx/convert/TargetFile.h"
#include "tools/velorx/convert/TargetPair.h"
#include "tools/velorx/convert/TargetPairs.h"
#include "tools/velorx/convert/TrialTarget.h"

namespace velorx {

std::unique_ptr<ITarget> MakeTarget(ETargetKind kind, const std::string& name,
                                    CTemporaries& temporaries)
{
    switch (kind) {
    case ETargetKind::Pair:
        return std::make_unique<CTargetPair>(name, temporaries);
    case ETargetKind::Pairs:
        return std::make_unique<CTargetPairs>(name, temporaries);
    case ETargetKind::File:
        break;
    }
    return std::make_unique<CTargetFile>(name, temporaries);
}

std::unique_ptr<ITarget> MakeTrialTarget(ETargetKind kind, const std::string& name,
                                         bool isInNewFolder, CTemporaries& temporaries)
{
    return std::make_unique<CTrialTarget>(kind, name, isInNewFolder, temporaries);
}

} // namespace velorx
