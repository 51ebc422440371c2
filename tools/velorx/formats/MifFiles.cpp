// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/MifFiles.h"

#include <QFile>
#include <QFileInfo>

namespace velorx {

namespace {

// The one of two names that exists, as the library takes it.
QString Existing(const QString& name, const char* extension, const char* other)
{
    const QString usual = name + QLatin1String(extension);
    return QFile::exists(usual) ? usual : name + QLatin1String(other);
}

} // namespace

std::optional<SMifFiles> FindMifFiles(const QString& path)
{
    SMifFiles files;
    files.name = path.left(path.size() - QFileInfo(path).suffix().size() - 1);
    files.table = Existing(files.name, ".mif", ".MIF");
    files.rows = Existing(files.name, ".mid", ".MID");
    return files.table == path ? std::optional<SMifFiles>(files) : std::nullopt;
}

QString MifFilesProblem()
{
    return QStringLiteral(
        "a table is read from NAME.mif, or from NAME.MIF where there is no NAME.mif");
}

} // namespace velorx
