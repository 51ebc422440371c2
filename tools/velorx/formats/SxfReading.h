// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/SxfHeader.h"
#include "VelorExchange/dxf/records/IDXFProgress.h"
#include "VelorExchange/Pnr.h"

#include <QString>

namespace velorx {

/// Takes the objects of a map, in file order. They live for the call and may be changed.
///
/// They are more than what the library's reader delivers. Coordinates lie where the map lies on the
/// ground; points, texts and thin lines have the drawings of the file; texts have their codes. The text of
/// a text is its first part, bare, and `extraTexts` are the others; lines of one part are separated by
/// "\n". There are as many contours as parts, or a single one. Alignments are 20 to 31. `hasOwnImage` is
/// false for texts that a classifier draws. The layer is the one that the attribute 0x802A names, if there
/// is one. Values of attributes don't end in zeros.
class ISxfHost
{
public:
    ISxfHost() = default;
    ISxfHost(const ISxfHost&) = delete;
    ISxfHost(ISxfHost&&) = delete;
    ISxfHost& operator=(const ISxfHost&) = delete;
    ISxfHost& operator=(ISxfHost&&) = delete;
    virtual ~ISxfHost() = default;

    virtual void Take(VelorExchange::pnr::CLineObject& line) = 0;
    virtual void Take(VelorExchange::pnr::CSquareObject& area) = 0;
    virtual void Take(VelorExchange::pnr::CPointObject& point) = 0;
    virtual void Take(VelorExchange::pnr::CTextObject& text) = 0;

    /// The rectangle that the library's writers put around everything, and that is no object of anybody.
    virtual void TakeFrame() = 0;
};

/// Reads the map `path`, whose header is `header`. Returns an error in words, or an empty string for
/// success; what was handed over before an error stays so. `progress` can be null.
QString ReadSxf(const QString& path, const SSxfHeader& header,
                VelorExchange::dxf::IDXFProgress* progress, ISxfHost& host);

} // namespace velorx
