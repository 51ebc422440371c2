// SPDX-License-Identifier: MIT
#include "tools/velorx/check/SxfTextChecker.h"

#include "tools/velorx/check/SxfObjectCheck.h"

#include <QFile>

namespace velorx {

QString CSxfTextChecker::Check(const QString& path, CFindings& findings,
                               VelorExchange::dxf::IDXFProgress* progress)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    if (progress != nullptr) {
        progress->Begin(QString(), file.size());
    }
    CSxfObjectCheck check(file, findings);
    if (check.TakePassport()) {
        while (check.Next()) {
            if (progress != nullptr) {
                progress->SetPosition(check.Place().byte);
            }
        }
        check.Finish();
    }
    if (progress != nullptr) {
        progress->Finish();
    }
    return {};
}

} // namespace velorx
