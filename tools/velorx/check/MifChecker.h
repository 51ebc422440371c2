// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/IChecker.h"

namespace velorx {

/// Checks tables: the ".mif", and then the ".mid" beside it.
class CMifChecker final : public IChecker
{
public:
    QString Check(const QString& path, CFindings& findings,
                  VelorExchange::dxf::IDXFProgress* progress) override;
};

} // namespace velorx
