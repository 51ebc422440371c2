// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/IChecker.h"

#include <QByteArray>
#include <QFile>

namespace velorx {

/// Checks maps of the binary form: one pass for the checksum, one for the records. Holds one record.
class CSxfChecker final : public IChecker
{
public:
    QString Check(const QString& path, CFindings& found,
                  VelorExchange::dxf::IDXFProgress* progress) override;

private:
    bool CheckHeader();
    void CheckSum();
    void CheckRecords(VelorExchange::dxf::IDXFProgress* progress);
    bool CheckRecord();
    bool FindRecord();
    qint32 Number(qint64 offset);

    QFile file;
    CFindings* findings = nullptr; ///< Of the run at hand.
    qint64 position = 0; ///< Of the record at hand.
};

} // namespace velorx
