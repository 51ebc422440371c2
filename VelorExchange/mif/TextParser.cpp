// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"
#include "VelorExchange/mif/RemoveQuotes_p.h"

#include <algorithm>

namespace VelorExchange::mif {

QString RemoveQuotes(const QString& text)
{
    const auto belongs = [](QChar c) { return c.isSpace() || c == QLatin1Char('"'); };
    QString kept;
    for (int i = 0; i < text.size();) {
        const int start = i;
        bool hasQuote = false;
        while (i < text.size() && belongs(text.at(i))) {
            hasQuote = hasQuote || text.at(i) == QLatin1Char('"');
            ++i;
        }
        if (!hasQuote) {
            kept += text.midRef(start, i - start);
        }
        if (i < text.size()) {
            kept += text.at(i++);
        }
    }
    return kept;
}

// Behind the keyword an apostrophe ends the text as a quote does; on a line of its own it stays.
void CMIFReader::ReadTextValue(QFile& file, CTextMIF& text)
{
    const CSpan span = line.Span();
    if (std::any_of(span.begin, span.end, [](char c) { return kAnyQuote.Has(c); })) {
        text.text = line.Text(SplitLine(kAnyQuote, 2)[1]);
        return;
    }
    NextLine(file, true);
    text.text = RemoveQuotes(line.Text());
}

// Text ["value"], the value on the next line if not here, then the line with the corners.
void CMIFReader::ReadText(QFile& file)
{
    CTextMIF record;
    ReadTextValue(file, record);
    NextLine(file, true);
    const CTokens tokens = SplitLine(kBlanks, 4);
    record.corner1 = PointAt(tokens, 0);
    record.corner2 = PointAt(tokens, 2);
    ReadClauses(file, [this, &record] {
        return TryClause(CWord("Font"), Bind(&CMIFReader::ReadFont, record))
            || TryClause(CWord("Angle"), Bind(&CMIFReader::ReadAngle, record))
            || TryClause(CWord("Spacing"), Bind(&CMIFReader::ReadSpacing, record))
            || TryClause(CWord("Justify"), Bind(&CMIFReader::ReadJustify, record))
            || TryClause(CWord("Label"), Bind(&CMIFReader::ReadLabel, record));
    });
    Deliver(record, &IMIFReader::AddText);
}

} // namespace VelorExchange::mif
