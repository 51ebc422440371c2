// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace velorx {

/// Whether a file that starts with `head` is a text drawing: its first group, comments left aside,
/// opens a section.
bool IsDxfContent(const QByteArray& head);

} // namespace velorx
