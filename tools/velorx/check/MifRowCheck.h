// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/Findings.h"
#include "tools/velorx/check/MifColumns.h"
#include "tools/velorx/check/TextLines.h"

#include <QTextCodec>

#include <string_view>
#include <vector>

namespace velorx {

/// Looks through the rows of a table.
class CMifRowCheck
{
public:
    /// All outlive this object.
    CMifRowCheck(QIODevice& source, const SMifTableHead& table, CFindings& results);

    /// Reads all rows, of which there are to be `objects`.
    void Run(qint64 objects);

private:
    void TakeRow();
    void Cut();
    void CheckValue(const SMifColumnType& column, std::string_view field);
    void CheckChars(const SMifColumnType& column, std::string_view field);
    void CheckDate(const SMifColumnType& column, std::string_view field);
    void CheckLogical(const SMifColumnType& column, std::string_view field);
    void Add(const SFindingKind& kind, const SMifColumnType& column, std::string_view field);
    SPlace Place() const { return {lines.Line(), lines.Byte(), ".mid"}; }

    const SMifTableHead& head;
    CFindings& findings;
    CTextLines lines;
    const QTextCodec* codec; ///< Qt's.
    QByteArray charset; ///< That the header tells, if it is not the codec's.
    std::vector<std::string_view> fields;
};

} // namespace velorx
