// SPDX-License-Identifier: MIT
#include "VelorExchange/foundation/ExportLog.h"
#include "VelorExchange/pnr/SxfLayout_p.h"
#include "VelorExchange/pnr/Texts_p.h"
#include "VelorExchange/pnr/TxtOutput_p.h"

#include <QDate>

#include <cstring>

namespace VelorExchange::pnr {

namespace {

constexpr const char* kCornerNames[] = {"P109", "P110", "P111", "P112"};

} // namespace

bool CPnrTxtWriterImpl::Close()
{
    const bool result = objectCount < 1 || WriteFile() || FailToWrite();
    CloseTemporaries();
    return result;
}

bool CPnrTxtWriterImpl::WriteFile()
{
    if (!HasFiniteBounds()) {
        return false;
    }
    output.Clear();
    PutPassport();
    PutField(".DAT", objectCount + 1);
    Put("\n");
    PutFrame();
    const QByteArray beginning(output.Data(), static_cast<int>(output.Size()));
    return WriteTarget(beginning, QByteArrayLiteral(".END\n"));
}

// What was counted never reached the file.
bool CPnrTxtWriterImpl::FailToWrite()
{
    if (log) {
        log->ClearStatistics(FileKey(userMap));
        log->AddString(texts::WriteError() + file->fileName());
    }
    return false;
}

void CPnrTxtWriterImpl::PutPassport()
{
    if (userMap) {
        Put(".SIT 4.0\n\n");
    } else {
        Put(".SXF 4.0\n\n");
    }
    PutField("P000", params.name);
    PutField("\nP001", params.name);
    Put("\nP002 5\n\n");
    const std::array<CPoint2D, 4> corners = Corners();
    for (std::size_t i = 0; i < corners.size(); ++i) {
        PutCornerLine(kCornerNames[i], corners[i]);
    }
    const QString today = QDate::currentDate().toString(QStringLiteral("yyyyMMdd"));
    PutField("\nP120 3\nP207", params.scale);
    PutField("\nP301", today);
    PutField("P307", today);
    Put("P302 1\nP303 1\n\n");
}

void CPnrTxtWriterImpl::PutCornerLine(const char* name, const CPoint2D& corner)
{
    output.Put(name, std::strlen(name));
    Put(" ");
    PutReal(corner.x);
    Put(" ");
    PutReal(corner.y);
    Put("\n");
}

// A closed line around the final bounds.
void CPnrTxtWriterImpl::PutFrame()
{
    ++objectCount;
    Put(".OBJ ");
    PutInt(sxf::kFrameCode);
    PutField(" LIN\n.KEY", objectCount);
    Put("5\n");
    const std::array<CPoint2D, 4> corners = Corners();
    for (std::size_t i = 0; i <= corners.size(); ++i) {
        PutReal(corners[i % corners.size()].x);
        Put(" ");
        PutReal(corners[i % corners.size()].y);
        Put("\n");
    }
}

} // namespace VelorExchange::pnr
