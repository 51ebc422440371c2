// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/MifColumns.h"
#include "tools/velorx/check/MifScan.h"

namespace velorx {

/// Looks through the header of a table, up to "Data".
class CMifHeaderCheck
{
public:
    /// All outlive this object.
    CMifHeaderCheck(CMifScan& lines, SMifTableHead& found, CFindings& results)
        : scan(lines), head(found), findings(results)
    {
    }

    /// False if the header has no end.
    bool Run();

private:
    bool TakeClause(const std::string& word);
    void TakeVersion();
    void TakeCharset();
    void TakeDelimiter();
    void TakeColumns();
    void TakeColumn();
    void CheckWords();
    void Add(const SFindingKind& kind);

    CMifScan& scan;
    SMifTableHead& head;
    CFindings& findings;
    bool isFirst = true;
};

} // namespace velorx
