// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/DxfPair.h"

#include <QByteArray>
#include <QTextCodec>

namespace velorx {

/// Looks whether the texts of a drawing can be decoded as the library decodes them: by the version of the
/// drawing, and by the local codec where that leaves it open.
class CDxfTexts
{
public:
    /// `results` outlives this object.
    explicit CDxfTexts(CFindings& results);

    void Take(const SDxfPair& pair);

private:
    void TakeHeader(const SDxfPair& pair);
    void TakeVersion(std::string_view value);
    void TakeCodePage(std::string_view value);

    CFindings& findings;
    QTextCodec* codec; ///< Qt's.
    bool isLocal = true; ///< That codec was chosen by the user and not by the drawing.
    QByteArray variable; ///< Of the header, whose value comes next.
    QByteArray codePage; ///< That the drawing tells, if it is not the codec's.
};

} // namespace velorx
