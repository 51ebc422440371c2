// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/mif/IMIFReader.h"
#include "VelorExchange/mif/LineScanner_p.h"
#include "VelorExchange/mif/LineText_p.h"
#include "VelorExchange/mif/MIDFile_p.h"
#include "VelorExchange/mif/Tokens_p.h"

#include <QFile>
#include <QString>

#include <boost/bind/bind.hpp>
#include <boost/core/ref.hpp>
#include <boost/function.hpp>

#include <memory>
#include <vector>

namespace VelorExchange::mif {

/// The object or the header can't be read. Thrown by value; it carries no text.
class CMifImportExeption
{
};

/// Reads one pair of files. Lives for one `Read`, and holds one object and one row of attributes.
///
/// An object parser is entered with the object's first line in `line` and leaves there the first line
/// that it didn't use, or `atEnd` set.
class CMIFReader final
{
public:
    explicit CMIFReader(IMIFReader* reader) : sink(reader) { }

    /// See `mif::Read`.
    bool Read(const QString& path);

    /// How many rows of the ".mid" have been taken.
    int RowsTaken() const { return midFile ? midFile->RowsTaken() : 0; }

    /// The columns of the header.
    const std::vector<CColumnMIF>& Columns() const { return columns; }

private:
    // ---- Frame ----

    bool NextLine(QFile& file, bool mustExist);
    CTokens SplitLine(const CSeparators& separators, std::size_t minCount);

    /// Calls `function` if the line holds `keyword` anywhere. The function object is built only then.
    template <class Bound>
    bool TryClause(const CWord& keyword, const Bound& bound)
    {
        if (!line.Contains(keyword)) {
            return false;
        }
        const boost::function<void()> function(boost::cref(bound));
        function();
        return true;
    }

    void ReadHeader(QFile& file);
    void ReadColumns(QFile& file, int count);
    int ReadColumnCount(QFile& file);
    void ReadObjects(QFile& file);
    bool ReadObject(QFile& file);
    void StartCollection();

    // ---- Objects ----

    void ReadRegion(QFile& file);
    void ReadText(QFile& file);
    void ReadMultipoint(QFile& file);
    void ReadPoint(QFile& file);
    void ReadPLine(QFile& file);
    void ReadLine(QFile& file);
    void ReadArc(QFile& file);
    void ReadRoundRect(QFile& file);
    void ReadRect(QFile& file);
    void ReadEllipse(QFile& file);

    // ---- Clauses ----

    void ReadPen(CPenMIF& pen);
    void ReadBrush(CBrushMIF& brush);
    void ReadCenter(CPoint2D& center);
    void ReadSymbol(CSymbolMIF& symbol);
    void ReadFont(CTextMIF& text);
    void ReadAngle(CTextMIF& text);
    void ReadSpacing(CTextMIF& text);
    void ReadJustify(CTextMIF& text);
    void ReadLabel(CTextMIF& text);

    /// The one clause of an object: tried once, on the next line.
    template <class Bound>
    void ReadSingleClause(QFile& file, const CWord& keyword, const Bound& bound)
    {
        NextLine(file, false);
        if (TryClause(keyword, bound)) {
            NextLine(file, false);
        }
    }

    /// Clauses in any order, as long as `tryOne` finds one in the line.
    template <class TryOne>
    void ReadClauses(QFile& file, const TryOne& tryOne)
    {
        while (NextLine(file, false) && tryOne()) {
        }
    }

    /// A clause reader bound to what it fills.
    template <class Value>
    auto Bind(void (CMIFReader::*clause)(Value&), Value& value)
    {
        return boost::bind(clause, this, boost::ref(value));
    }

    void ReadPenAndBrush(QFile& file, CPenMIF& pen, CBrushMIF& brush);

    // ---- Steps shared by objects ----

    /// The two corners in tokens 1 to 4.
    template <class Record>
    void TakeCorners(const CTokens& tokens, Record& record)
    {
        record.corner1 = PointAt(tokens, 1);
        record.corner2 = PointAt(tokens, 3);
    }

    CPoint2D PointAt(const CTokens& tokens, std::size_t index) const
    {
        return {line.ToDouble(tokens[index]), line.ToDouble(tokens[index + 1])};
    }

    int ReadCount(QFile& file);
    CPoint2D ReadVertex(QFile& file);
    void ReadVertices(QFile& file, int count, std::vector<CPoint2D>& points);
    void ReadTextValue(QFile& file, CTextMIF& text);
    int TakeSectionCount(int& firstCount);

    /// `count`, or what the rest of the file can hold if that is less. Throws `std::length_error` for
    /// a count that is negative or asks for more than 2^31 - 1 bytes.
    std::size_t RoomFor(int count, std::size_t elementSize, std::size_t bytesInFile) const;

    // ---- Attributes ----

    void FillAttributes(CAttributeHolderMIF& record);
    bool MakeValue(std::size_t column, QVariant& value);
    void LearnNames();

    /// Takes the next row, then hands the record over.
    template <class Record>
    void Deliver(Record& record, void (IMIFReader::*operation)(const Record&))
    {
        midFile->NextRecord();
        Hand(record, operation);
    }

    template <class Record>
    void Hand(Record& record, void (IMIFReader::*operation)(const Record&))
    {
        FillAttributes(record);
        (sink->*operation)(record);
    }

    IMIFReader* sink; // not owned
    std::unique_ptr<CMIDFile> midFile;
    std::vector<CColumnMIF> columns;
    CLineText line; // trimmed
    bool atEnd = false;
    bool columnsEnabled = true;

    CLineScanner scanner;
    qint64 fileSize = 0;
    std::vector<QString> names; // of the attributes, by column
    bool namesDiffer = false; // so that none of them ever needs a number
    std::vector<CPoint2D> spare; // room for the points of the next line
};

} // namespace VelorExchange::mif
