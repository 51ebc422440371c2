// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/mif/Pen.h"

#include <QByteArray>
#include <QtGlobal>

#include <cstddef>
#include <vector>

namespace velorx {

/// What an object of a table has that the library does not write: it writes regions of one ring and without
/// an outline, and texts without their alignment.
struct SMifDetail
{
    qint64 object = 0; ///< Its number in the table, from 0.
    bool hasPen = false; ///< Of a region.
    VelorExchange::mif::CPenMIF pen;
    int justify = 0; ///< Of a text: 1 centre, 2 right.
    /// Numbers of vertices, of a region whose rings the library was given as one; empty for one ring.
    std::vector<qint64> rings;
};

/// Puts details into the objects of a table that the library wrote, line by line.
class CMifDetailWriter
{
public:
    /// `details` are in the order of their objects, and outlive this.
    explicit CMifDetailWriter(const std::vector<SMifDetail>& details)
        : next(details.data()), end(next + details.size())
    {
    }

    /// Appends to `out` what becomes of the line from `begin` to `end`, with its line feed.
    void Take(const char* begin, const char* end, QByteArray& out);

    /// Whether lines stay as they are from here on.
    bool IsDone() const { return next == end && current == nullptr; }

private:
    void StartObject();
    void TakeRegion(QByteArray& out);
    bool TakeNumbers(QByteArray& out);

    const SMifDetail* next;
    const SMifDetail* end;
    const SMifDetail* current = nullptr; ///< Of the object at hand, if it has any.
    qint64 object = -1;
    std::size_t ring = 0; ///< Whose vertices come.
    qint64 verticesLeft = 0; ///< Of that ring.
    bool isCountNext = false;
};

} // namespace velorx
