// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

namespace VelorExchange::mif {

namespace {

struct CTypeWord
{
    CWord word;
    ColumnType type;
};

// A type counts wherever its word stands, in this order.
constexpr CTypeWord kTypes[] = {{CWord("Char"), Char},         {CWord("Integer"), Integer},
                                {CWord("Smallint"), Smallint}, {CWord("Decimal"), Decimal},
                                {CWord("Float"), Float},       {CWord("Date"), Date},
                                {CWord("Logical"), Logical}};

ColumnType TypeOf(const QString& text)
{
    for (const CTypeWord& known : kTypes) {
        const QLatin1String word(known.word.text.data(), static_cast<int>(known.word.text.size()));
        if (text.contains(word, Qt::CaseInsensitive)) {
            return known.type;
        }
    }
    throw CMifImportExeption();
}

} // namespace

// Ends with the line "Data" at hand. What isn't named here has no effect.
void CMIFReader::ReadHeader(QFile& file)
{
    for (;;) {
        NextLine(file, true);
        if (line.Contains(CWord("Delimiter"))) {
            midFile->SetDelimiter(line.Text(SplitLine(kQuote, 2)[1]));
        } else if (line.Contains(CWord("Columns"))) {
            ReadColumns(file, ReadColumnCount(file));
        } else if (line.Contains(CWord("Data"))) {
            return;
        }
    }
}

int CMIFReader::ReadColumnCount(QFile& file)
{
    if (line.HasDigit()) {
        return line.ToInt(SplitLine(kBlanks, 2)[1]);
    }
    NextLine(file, true);
    return line.ToInt(line.Span());
}

void CMIFReader::ReadColumns(QFile& file, int count)
{
    constexpr std::size_t kLeastLine = 4; // "a i\n": no type is that short
    columns.clear();
    columns.reserve(RoomFor(count, sizeof(CColumnMIF), kLeastLine));
    for (int i = 0; i < count && columnsEnabled; ++i) {
        NextLine(file, true);
        const CTokens tokens = SplitLine(kBlankOrBracket, 2);
        columns.push_back({line.Text(tokens[0]), TypeOf(line.Text(tokens[1]))});
    }
}

} // namespace VelorExchange::mif
