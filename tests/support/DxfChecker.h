// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <string>
#include <vector>

namespace VelorExchange::test {

/// What is wrong with a drawing that the writer wrote, one line each; empty if nothing is.
///
/// Looks at: line ends; the frame of sections, tables, blocks; the order of the groups at the head of
/// each record; handles (unique whatever their case, below `$HANDSEED`); pointers (all resolve but that
/// to the image variables where there are no images); numbers (whole texts, finite, integers where the
/// group wants one); counts of vertices, knots and loops; pairs of coordinates; names (no forbidden
/// character; layers, line types and text styles that are used are in their tables).
std::vector<std::string> ProblemsOf(const QByteArray& drawing);

} // namespace VelorExchange::test
