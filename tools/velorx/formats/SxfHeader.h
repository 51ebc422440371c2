// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace velorx {

/// What stands ahead of the objects of an SXF map and does not reach a host.
struct SSxfHeader
{
    QString fault; ///< Why there is nothing to be read, in words that follow its name; else empty.
    bool isText = false; ///< The text form.
    bool isUserMap = false; ///< A user map; only the text form tells.
    QString name; ///< Of the map; empty where the file tells none.
    QString sheet; ///< Number of the sheet, where it is another text than `name`.
    qint64 scale = 0; ///< The scale's denominator; 0 where the file tells none.
    qint64 declaredRecords = 0; ///< As many objects as the file is to have.
    /// Where the zero of the coordinates that the library delivers lies on the ground, which is the corner
    /// of the sheet in files whose coordinates are not real ones.
    double originX = 0.0;
    double originY = 0.0; ///< The same; x counts to the north and y to the east.
};

/// Reads the header of the file `path`, which can be opened. What is not there is 0.
SSxfHeader ReadSxfHeader(const QString& path);

/// Whether a file that starts with `head` is a binary SXF file, of whatever version.
bool IsSxfContent(const QByteArray& head);

/// Whether a file that starts with `head` is an SXF map in text form.
bool IsSxfTextContent(const QByteArray& head);

} // namespace velorx
