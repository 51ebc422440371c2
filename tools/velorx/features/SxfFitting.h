// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/Pnr.h"

#include <QString>

namespace velorx {

class CFeatureTally;

/// Makes objects fit for a form of SXF maps, so that what is written can be read again. What is changed on
/// the way goes to the tally.
class CSxfFitting
{
public:
    /// As many vertices of a contour, and contours of an object, as the reader of the binary form takes.
    static constexpr quint32 kMostInBinary = 32767;

    /// `counts` outlives this object.
    CSxfFitting(bool isText, CFeatureTally& counts) : isTextForm(isText), tally(counts) { }

    /// What all objects have in common: contours, layer and attributes. False for an object that cannot be
    /// written; the tally knows why.
    bool Fit(VelorExchange::pnr::CBaseObject& object);

    /// The contour and the letters of a text that has as many contours as parts or a single one, and no more
    /// than one where it has one part. Call `Fit` ahead.
    void FitText(VelorExchange::pnr::CTextObject& text, int scale);

    /// Whether a contour has more vertices than the form takes.
    bool IsTooLong(const VelorExchange::pnr::CAbstractVertexHolder& contour) const;

    /// `text` in one line, without words at which readers of the text form stop.
    QString InOneLine(QString text) const;

private:
    bool FitContours(VelorExchange::pnr::CBaseObject& object);
    void FitLayer(VelorExchange::pnr::CBaseObject& object);
    void FitSemantics(VelorExchange::pnr::CBaseObject& object);
    void FitValue(VelorExchange::pnr::PnrSemantic& semantic, const QString& layer);
    void FitParts(VelorExchange::pnr::CTextObject& text);
    void FitPart(QString& part, const QString& layer);
    void FitPartsInBinary(VelorExchange::pnr::CTextObject& text);
    void CountLetters(const QString& text, const QString& layer);

    bool isTextForm;
    CFeatureTally& tally;
};

} // namespace velorx
