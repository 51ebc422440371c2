// SPDX-License-Identifier: MIT
#pragma once

#include "tests/tools/SxfMaps.h"
#include "tools/velorx/convert/Conversion.h"

#include <QFile>

namespace velorx::test {

/// What a conversion of a map gave.
struct SConverted
{
    QString problem;
    CConversionReport report;
    std::string log; ///< What reading the target hands over; empty with a problem.
    QByteArray bytes; ///< Of the target.
};

/// Maps converted from either form.
class SxfToSxf : public CSxfMaps
{
protected:
    SConverted Convert(const QByteArray& map, bool isText) const
    {
        SConversionJob job;
        job.source = Write(map, "source");
        job.target = Write(QByteArray(), "target");
        job.targetName = QStringLiteral("map.out");
        job.options.precision = 3;
        SConverted result;
        result.problem =
            isText ? ConvertSxfToSxfText(job, result.report) : ConvertSxfToSxf(job, result.report);
        if (result.problem.isEmpty()) {
            result.log = ReadFile(job.target);
        }
        QFile target(job.target);
        EXPECT_TRUE(target.open(QIODevice::ReadOnly));
        result.bytes = target.readAll();
        return result;
    }
};

/// A user map called "Map" at a scale of 1 to 2000 with these objects of the text form.
inline QByteArray TextMap(const QByteArray& objects)
{
    return ".SIT 4.0\nP000 Map\nP001 Map\nP207 2000\n.DAT "
        + QByteArray::number(objects.count(".OBJ ")) + "\n" + objects + ".END\n";
}

} // namespace velorx::test
