// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/MIFReader_p.h"

#include "VelorExchange/mif/Read.h"

namespace VelorExchange::mif {

namespace {

constexpr std::size_t kUsualParts = 3; // of a collection that doesn't tell their number

// Progress is told in 32 bits.
int Low32(qint64 bytes)
{
    return static_cast<int>(static_cast<quint32>(bytes));
}

} // namespace

bool Read(const QString& path, IMIFReader* reader)
{
    return CMIFReader(reader).Read(path);
}

bool CMIFReader::Read(const QString& path)
{
    QFile file;
    if (!OpenEither(file, path, ".mif", ".MIF")) {
        return false;
    }
    midFile = std::make_unique<CMIDFile>(path);
    columns.clear();
    scanner.Start(file);
    fileSize = file.size();
    sink->SetProgressRange(Low32(fileSize));
    try {
        ReadHeader(file);
    } catch (const CMifImportExeption&) {
        return false;
    }
    LearnNames();
    ReadObjects(file);
    sink->SetProgress(Low32(fileSize));
    sink->Finish();
    return true;
}

void CMIFReader::ReadObjects(QFile& file)
{
    while (!atEnd) {
        sink->SetProgress(Low32(scanner.Position()));
        bool isRead = false;
        try {
            isRead = ReadObject(file);
        } catch (const CMifImportExeption&) {
            // The object is dropped and takes no row.
        }
        // A parser leaves its first unused line at hand.
        if (!isRead && !NextLine(file, false)) {
            return;
        }
    }
}

// True if a parser read an object. The first keyword found anywhere in the line wins.
bool CMIFReader::ReadObject(QFile& file)
{
    struct CKeyword
    {
        CWord word;
        void (CMIFReader::*parser)(QFile&) = nullptr;
    };
    // The order tells apart keywords that hold one another.
    static constexpr CKeyword kKeywords[] = {{CWord("Region"), &CMIFReader::ReadRegion},
                                             {CWord("Text"), &CMIFReader::ReadText},
                                             {CWord("Multipoint"), &CMIFReader::ReadMultipoint},
                                             {CWord("Point"), &CMIFReader::ReadPoint},
                                             {CWord("PLine"), &CMIFReader::ReadPLine},
                                             {CWord("Line"), &CMIFReader::ReadLine},
                                             {CWord("Arc"), &CMIFReader::ReadArc},
                                             {CWord("RoundRect"), &CMIFReader::ReadRoundRect},
                                             {CWord("Rect"), &CMIFReader::ReadRect},
                                             {CWord("Ellipse"), &CMIFReader::ReadEllipse}};
    for (const CKeyword& keyword : kKeywords) {
        if (TryClause(keyword.word, [&] { (this->*keyword.parser)(file); })) {
            return true;
        }
    }
    if (line.Contains(CWord("Collection"))) {
        StartCollection();
    }
    return false;
}

// The parts of a collection are read as ordinary objects that share one row.
void CMIFReader::StartCollection()
{
    midFile->NextRecord();
    const CTokens tokens = SplitLine(kBlanks, 1);
    midFile->SetRepeatCount(tokens.count == 2 ? line.ToInt(tokens[1])
                                              : static_cast<int>(kUsualParts));
}

bool CMIFReader::NextLine(QFile& file, bool mustExist)
{
    CSpan raw;
    while (scanner.Next(file, raw)) {
        line.SetLine(raw, scanner.HasLineFeed());
        if (!line.Span().IsEmpty()) {
            return true;
        }
    }
    atEnd = true;
    if (mustExist) {
        throw CMifImportExeption();
    }
    return false;
}

CTokens CMIFReader::SplitLine(const CSeparators& separators, std::size_t minCount)
{
    line.Remove('\r');
    const CTokens tokens = Split(line.Span(), separators);
    if (tokens.count < minCount) {
        throw CMifImportExeption();
    }
    return tokens;
}

} // namespace VelorExchange::mif
