// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/info/InfoOptions.h"
#include "tools/velorx/info/ISummary.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace velorx {

/// A family of formats that velorx reads.
struct SFamily
{
    const char* name; ///< "DXF".
    const char* description; ///< "DXF drawing".
    const char* extension; ///< Without the point, lower case.
    bool extensionTells; ///< False where files of other kinds have the extension too.
    /// Whether a file starts like one of the family; null where that does not help.
    bool (*isContent)(const QByteArray& head);
    std::unique_ptr<ISummary> (*makeSummary)(const SInfoOptions& options);
};

/// How much of a file's start `FindFamily` wants to see.
constexpr qint64 kHeadSize = 4096;

/// The family of a file, by its extension, or by how it starts where the extension tells nothing. Null
/// if neither is known.
const SFamily* FindFamily(const QString& path, const QByteArray& head);

/// Why what is at `path` cannot be read as a file, in words that follow its name; empty if nothing is there. Files
/// are read several times and from several places, which pipes do not allow.
QString WhyNoFile(const QString& path);

/// Why a file that `FindFamily` does not know is of none, in words that follow its name.
QString WhyNoFamily(const QString& path);

/// The extensions of all families, "*.dxf, *.mif".
QString KnownExtensions();

} // namespace velorx
