// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/IFeatureSink.h"

#include <QString>

namespace velorx {

/// What a target is to be.
struct STargetOptions
{
    /// A file that exists and is empty. For a MIF pair it ends in ".mif" in any case, lies in a folder of
    /// its own, and the other file goes beside it; for a folder of pairs it is an empty folder.
    QString path;
    QString name; ///< What it is called in the end, for the report.
    int drawingVersion = 1018; ///< 1015 or 1018, for drawings.
    int precision = 6; ///< Decimals of numbers in text formats.
    int scale = 0; ///< Denominator of the map's scale, for SXF maps; 0 for that of the source.
};

/// Writes what it takes. One life: the stream, then `Finish`.
class IFeatureTarget : public IFeatureSink
{
public:
    /// Makes the target. Returns an error in words, or an empty string for success. A file that cannot
    /// be written throws `FileError`, here or in a call of the stream before.
    virtual QString Finish() = 0;

    /// The export report in its own form, once finished; ends without a line feed.
    virtual QString Log() const = 0;
};

} // namespace velorx
