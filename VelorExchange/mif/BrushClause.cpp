// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

// Brush (pattern, foreColor [, backColor])
void CMIFReader::ReadBrush(CBrushMIF& brush)
{
    const CTokens tokens = SplitLine(kBracketOrComma, 3);
    brush.pattern = line.ToInt(tokens[1]);
    brush.foreColor = line.ToColor(tokens[2]);
    brush.backColor = tokens.count > 3 ? line.ToColor(tokens[3]) : kWhite;
}

// The clauses of what has an outline and a filling and no more.
void CMIFReader::ReadPenAndBrush(QFile& file, CPenMIF& pen, CBrushMIF& brush)
{
    ReadClauses(file, [this, &pen, &brush] {
        return TryClause(CWord("Pen"), Bind(&CMIFReader::ReadPen, pen))
            || TryClause(CWord("Brush"), Bind(&CMIFReader::ReadBrush, brush));
    });
}

} // namespace VelorExchange::mif
