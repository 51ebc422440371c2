// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace velorx {

/// Whether a file that starts with `head` is a text drawing: its first group, comments left aside,
/// opens a section.
bool IsDxfContent(const QByteArray& head);

/// Why the file at `path` cannot be a text drawing, in words that follow its name; empty if it can.
QString WhyNoDrawing(const QString& path);

/// Whether the mark of the end (0, EOF) stands among the last 4096 bytes of the file at `path`.
bool HasEndMark(const QString& path);

/// What to tell people of a drawing without that mark.
constexpr char kNoEndMark[] =
    "The drawing has no end mark (0, EOF): it may have been cut short; velorx check tells where";

/// The version number that `$ACADVER` tells near the start of a drawing, 1009 where it is not found. It
/// stands in for the header's where the reader delivers none, because the header does not end.
int VersionNearStart(const QByteArray& head);

} // namespace velorx
