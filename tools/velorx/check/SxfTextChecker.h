// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/IChecker.h"

namespace velorx {

/// Checks maps in text form, in one pass.
class CSxfTextChecker final : public IChecker
{
public:
    QString Check(const QString& path, CFindings& findings,
                  VelorExchange::dxf::IDXFProgress* progress) override;
};

} // namespace velorx
