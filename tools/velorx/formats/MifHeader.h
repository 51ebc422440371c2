// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/info/Listed.h"

#include <QString>

namespace velorx {

/// A column as it stands in the header.
struct SMifColumn
{
    QString name;
    QString definition; ///< With width and decimals: "Decimal (10, 2)".
    const char* type = nullptr; ///< "Decimal"; null if the library has no such type.
};

/// What the header of a ".mif" tells. Texts are empty where the header has no such clause.
struct SMifHeader
{
    QString version;
    QString charset;
    QString delimiter;
    QString coordSys;
    CListed<SMifColumn> columns;
};

/// Looks through the header of the file `path`, by the rules of the library's reader, up to "Data"
/// or to what that reader cannot read.
SMifHeader ReadMifHeader(const QString& path);

} // namespace velorx
