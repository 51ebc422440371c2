// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace velorx {

/// What stands ahead of the objects of an SXF map and does not reach a host.
struct SSxfHeader
{
    bool isText = false; ///< The text form.
    qint64 scale = 0; ///< The scale's denominator; 0 where the file tells none.
    qint64 declaredRecords = 0; ///< As many objects as the file is to have.
};

/// Reads the header of the file `path`, which can be opened. What is not there is 0.
SSxfHeader ReadSxfHeader(const QString& path);

/// Whether a file that starts with `head` is a binary SXF file, of whatever version.
bool IsSxfContent(const QByteArray& head);

/// Whether a file that starts with `head` is an SXF map in text form.
bool IsSxfTextContent(const QByteArray& head);

} // namespace velorx
