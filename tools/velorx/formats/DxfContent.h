// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace velorx {

/// Whether a file that starts with `head` is a text drawing: its first group, comments left aside,
/// opens a section.
bool IsDxfContent(const QByteArray& head);

/// The version number that `$ACADVER` tells near the start of a drawing, 1009 where it is not found. It
/// stands in for the header's where the reader delivers none, because the header does not end.
int VersionNearStart(const QByteArray& head);

} // namespace velorx
