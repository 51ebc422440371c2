// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"

#include <QString>

#include <map>

namespace VelorExchange {

/// The report of an export run: free lines, and counts per output file and kind of object.
///
/// The host makes it, hands a pointer to each writer's `Init` and reads the report with `GetText`.
/// One log can serve several writers in turn. It writes no file, no operation fails, and it is used
/// from one thread at a time. Copies are independent of each other.
class VELOREXCHANGE_EXPORT CExportLog
{
public:
    CExportLog();
    CExportLog(const CExportLog& other); ///< Takes text, counts and settings.
    CExportLog(CExportLog&& other) noexcept; ///< Leaves `other` without statistics.
    CExportLog& operator=(const CExportLog& other); ///< Takes text, counts and settings.
    CExportLog& operator=(CExportLog&& other) noexcept; ///< Leaves `other` without statistics.
    ~CExportLog();

    /// Appends a line with a rule of 59 dashes under it to the log text.
    void AddString(const QString& s);

    /// Empties the log text. Counts and settings stay.
    void Clear();

    /// Forgets all counts of `file`; a file without any is no fault.
    void ClearStatistics(const QString& file);

    /// Puts the report in place of what `out` held: the text, the counts by file and kind in the
    /// order of their names, and the local date and time. Returns its length in `QChar`s.
    int GetText(QString& out) const;

    /// The prefix of every file name in the report, applied when the report is built. It brings its
    /// own trailing separator.
    void SetFolderPath(const QString& path);

    /// The file under which the one-argument `UpStatistic` counts from now on.
    void SetOutputFile(const QString& file);

    /// Counts one object of `kind` under the current output file.
    void UpStatistic(const QString& kind);

    /// Counts one object of `kind` under `file`. Counts are 32 bits wide and wrap.
    void UpStatistic(const QString& file, const QString& kind);

private:
    void AddString(QString& out, const QString& s) const;

    QString text;
    QString outputFile;
    QString folderPath;
    std::map<QString, std::map<QString, unsigned int>> statistics;
};

} // namespace VelorExchange
