// SPDX-License-Identifier: MIT
#include "tools/velorx/check/MifChecker.h"

#include "tools/velorx/check/MifHeaderCheck.h"
#include "tools/velorx/check/MifKindsOfFinding.h"
#include "tools/velorx/check/MifObjectCheck.h"
#include "tools/velorx/check/MifRowCheck.h"

#include <QFile>
#include <QFileInfo>

namespace velorx {

namespace {

// As the library looks for it.
QString RowsOf(const QString& path)
{
    const QString name = path.left(path.size() - QFileInfo(path).suffix().size());
    const QString usual = name + QStringLiteral("mid");
    return QFile::exists(usual) ? usual : name + QStringLiteral("MID");
}

} // namespace

QString CMifChecker::Check(const QString& path, CFindings& findings,
                           VelorExchange::dxf::IDXFProgress* progress)
{
    QFile table(path);
    if (!table.open(QIODevice::ReadOnly)) {
        return table.errorString();
    }
    if (progress != nullptr) {
        progress->Begin(QString(), table.size());
    }
    CMifScan scan(table, findings);
    SMifTableHead head;
    const bool hasData = CMifHeaderCheck(scan, head, findings).Run();
    CMifObjectCheck objects(scan, findings);
    while (hasData && objects.Next()) {
        if (progress != nullptr) {
            progress->SetPosition(scan.Place().byte);
        }
    }
    if (progress != nullptr) {
        progress->Finish();
    }
    if (!hasData || head.columns.empty()) {
        return {};
    }
    QFile rows(RowsOf(path));
    if (rows.open(QIODevice::ReadOnly)) {
        CMifRowCheck(rows, head, findings).Run(objects.Objects());
    } else if (objects.Objects() > 0) {
        findings.Add(miffindings::kNoRows, {0, -1, ".mid"}, rows.errorString());
    }
    return {};
}

} // namespace velorx
