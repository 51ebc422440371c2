// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>
#include <QtGlobal>

#include <utility>
#include <vector>

namespace velorx {

/// What became of one kind of object in a conversion.
struct SConvertedKind
{
    QString name; ///< As the source calls it.
    QString writtenAs; ///< What the target calls it; empty where nothing was written.
    qint64 inDrawing = 0; ///< Read, standing by themselves.
    qint64 inBlocks = 0; ///< Read, within blocks.
    qint64 written = 0; ///< Of both.
};

/// Something that the target does not hold as the source had it.
struct SConversionLoss
{
    QString what; ///< In words that follow a count.
    qint64 count = 0;
    std::vector<std::pair<QString, qint64>>
        layers; ///< How much of it where, as far as that is known.
};

/// What a conversion has to tell in the end: whatever was read is either written or stands here.
struct CConversionReport
{
    std::vector<SConvertedKind> kinds; ///< Those that were met, in the source family's order.
    std::vector<SConversionLoss> losses; ///< Those that were met.
    std::vector<QString> remarks; ///< What else is to be known, one line each.
    QString log; ///< The export report in its own form; ends without a line feed.

    /// The report for people: lines that each end with a line feed.
    QString ToText() const;

    /// The same for programs, under the keys "kinds", "losses", "remarks" and "log".
    QJsonObject ToJson() const;
};

} // namespace velorx
