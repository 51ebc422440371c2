// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/SxfFitting.h"
#include "VelorExchange/foundation/ExportLog.h"
#include "VelorExchange/Pnr.h"

#include <QString>

#include <memory>

namespace velorx {

class CFeatureTally;

/// The kinds of objects of a map, in the source's words and the target's.
constexpr char kSxfLine[] = "Line";
constexpr char kSxfArea[] = "Area";
constexpr char kSxfPoint[] = "Point";
constexpr char kSxfText[] = "Text";
constexpr char kSxfTextPart[] = "Text, further part";
constexpr char kSxfFrame[] = "Frame";

/// Where a map goes.
struct SSxfTarget
{
    QString path; ///< A file that exists and is empty.
    QString name; ///< What it is called in the end, for the report.
    bool isText = false; ///< The text form.
    int precision = 6; ///< Decimals of numbers in the text form.
};

/// Writes a map of either form. Objects are made fit before they are written; what is changed or left out
/// goes to the tally. Memory follows the largest object.
class CSxfOutput
{
public:
    /// `counts` outlives this object.
    CSxfOutput(SSxfTarget file, CFeatureTally& counts);

    /// The first call. Throws `FileError` where there is no place for temporary files.
    void Begin(const QString& mapName, int scaleDenominator, bool isUserMap);

    // These change the object. They return the kind that was written, or null, and then the tally knows
    // what was lost. A text whose parts have a contour each becomes several, of which the tally counts all
    // but the first. They throw `FileError` when writing fails.
    const char* Write(VelorExchange::pnr::CLineObject& line);
    const char* Write(VelorExchange::pnr::CSquareObject& area);
    const char* Write(VelorExchange::pnr::CPointObject& point);
    const char* Write(VelorExchange::pnr::CTextObject& text);

    /// How many objects are written so far, each of which has the next number.
    qint64 Written() const { return written; }

    int Scale() const { return scale; }

    /// `text` in one line that the form can hold, for what is no object's text or attribute.
    QString InOneLine(const QString& text) const { return fitting.InOneLine(text); }

    /// Makes the file. Returns an error in words, or an empty string for success; throws `FileError` when
    /// writing fails.
    QString Finish();

    /// The export report, once finished; ends without a line feed.
    QString Log() const;

private:
    const char* Divide(VelorExchange::pnr::CLineObject& line);
    bool RefuseTooLong(const VelorExchange::pnr::CBaseObject& object, const QString& what);
    void WriteOneText(VelorExchange::pnr::CTextObject& text);
    void Count(bool isWritten);
    [[noreturn]] void Fail() const;

    SSxfTarget target;
    CFeatureTally& tally;
    CSxfFitting fitting;
    VelorExchange::CExportLog log;
    std::unique_ptr<VelorExchange::pnr::IPnrWriter, void (*)(VelorExchange::pnr::IPnrWriter*)>
        writer;
    int scale = 0;
    qint64 written = 0;
};

} // namespace velorx
