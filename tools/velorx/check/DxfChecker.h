// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/DxfBlockLoops.h"
#include "tools/velorx/check/DxfCounts.h"
#include "tools/velorx/check/DxfPair.h"
#include "tools/velorx/check/DxfReferences.h"
#include "tools/velorx/check/DxfStructure.h"
#include "tools/velorx/check/DxfTexts.h"
#include "tools/velorx/check/IChecker.h"
#include "tools/velorx/check/TextLines.h"

#include <optional>

namespace velorx {

/// Checks text drawings, in one pass.
class CDxfChecker final : public IChecker
{
public:
    QString Check(const QString& path, CFindings& findings,
                  VelorExchange::dxf::IDXFProgress* progress) override;

private:
    /// One run over one file.
    class CRun;
};

} // namespace velorx
