// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/ExportLog.h"

#include "VelorExchange/foundation/Texts_p.h"

#include <QDateTime>

#include <utility>

namespace VelorExchange {

CExportLog::CExportLog() = default;
CExportLog::CExportLog(const CExportLog& other) = default;
CExportLog& CExportLog::operator=(const CExportLog& other) = default;
CExportLog::~CExportLog() = default;

CExportLog::CExportLog(CExportLog&& other) noexcept
    : text(std::move(other.text)), outputFile(std::move(other.outputFile)),
      folderPath(std::move(other.folderPath)), statistics(std::exchange(other.statistics, {}))
{
}

CExportLog& CExportLog::operator=(CExportLog&& other) noexcept
{
    if (this != &other) {
        text = std::move(other.text);
        outputFile = std::move(other.outputFile);
        folderPath = std::move(other.folderPath);
        statistics = std::exchange(other.statistics, {});
    }
    return *this;
}

void CExportLog::AddString(const QString& s)
{
    AddString(text, s);
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): a member by its interface
void CExportLog::AddString(QString& out, const QString& s) const
{
    out += QLatin1Char('\n');
    out += s;
    out += texts::Rule();
}

void CExportLog::Clear()
{
    text.clear();
}

void CExportLog::ClearStatistics(const QString& file)
{
    statistics.erase(file);
}

int CExportLog::GetText(QString& out) const
{
    QString report = text;
    for (const auto& [file, kinds] : statistics) {
        AddString(report, texts::ExportToFile() + folderPath + file);
        for (const auto& [kind, count] : kinds) {
            if (count > 0) {
                // All three at once: a kind that holds "%2" is not a place for the count.
                report += texts::WrittenToFile().arg(kind, QString::number(count), texts::Rule());
            }
        }
    }
    report += QLatin1Char('\n');
    report += QDateTime::currentDateTime().toString(QStringLiteral("dd.MM.yy, h:mm:ss"));
    out = std::move(report);
    return out.size();
}

void CExportLog::SetFolderPath(const QString& path)
{
    folderPath = path;
}

void CExportLog::SetOutputFile(const QString& file)
{
    outputFile = file;
}

void CExportLog::UpStatistic(const QString& kind)
{
    UpStatistic(outputFile, kind);
}

void CExportLog::UpStatistic(const QString& file, const QString& kind)
{
    ++statistics[file][kind];
}

} // namespace VelorExchange
