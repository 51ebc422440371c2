// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/ConversionReport.h"

#include <QByteArray>
#include <QString>

#include <string>

namespace velorx::test {

/// What a conversion of a drawing left behind.
struct SConverted
{
    QString problem; ///< Empty for success.
    CConversionReport report;
    QByteArray drawing; ///< The result.
};

/// Converts the drawing `source`, text in Windows-1251, by the tool's own operation. Whatever the checker of
/// written drawings finds in the result fails the test.
SConverted Converted(const QByteArray& source, int version = 1018, int precision = 6);

/// A section in the form of `Tags`, one group a line: "0 LINE\n8 A\n".
std::string Section(const char* name, const std::string& groups);

/// A drawing of sections in the form of `Tags`.
QByteArray Drawing(const std::string& sections);

/// A drawing with these entities.
QByteArray WithEntities(const std::string& groups);

/// A drawing with these records of tables, and entities.
QByteArray WithTables(const std::string& records, const std::string& entities = {});

/// A drawing with the block "B" that holds `block`, and entities.
QByteArray WithBlock(const std::string& block, const std::string& entities = {});

/// What the conversion of `source` lost or changed, one line each: "2 circles, written as whole arcs (A 2)".
std::string LossesOf(const QByteArray& source, int version = 1018);

/// The calls of the reader on the result of `source` that begin with `operation`, one a line.
std::string ResultOf(const QByteArray& source, const char* operation, int version = 1018);

/// The records of the kind `name` in the result of `source`, one group a line.
std::string RecordsOf(const QByteArray& source, const char* name, int version = 1018);

} // namespace velorx::test
