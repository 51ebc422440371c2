// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/formats/DxfSurveyEntity.h"
#include "tools/velorx/formats/DxfTally.h"

#include <QHash>
#include <QString>
#include <QtGlobal>

namespace velorx {

/// What the texts of a drawing have in common, from which a host tells what the reader leaves open: which
/// point of a text its position is, and where the pieces of a long one meet.
class CDxfTextHabits
{
public:
    /// A piece of the text in hand, decoded, under group 1 or 3 of an MTEXT.
    void TakePiece(int code, const QString& piece);

    /// A TEXT, ATTRIB or MTEXT whose groups are complete; other kinds are passed over.
    void Take(const SDxfSurveyEntity& entity);

    /// Whether texts that are set by their middle or right end have that point as their position.
    /// Otherwise, as in most drawings, their position is their left end.
    bool IsPositionTheAnchor() const { return anchorsAtPosition > anchorsElsewhere; }

    /// `text` as the reader delivers it, without the semicolons at its seams where all long texts of the
    /// drawing are parted in the usual way.
    QString WithoutSeams(const QString& text) const;

    /// Counts the texts that keep semicolons; once the drawing is looked over.
    void AddLosses(CDxfTally& tally) const;

private:
    bool isRegular = true; ///< All pieces but the last ones have the usual length.
    QHash<QString, qint64> seams; ///< Texts with seams, by layer.
    qint64 anchorsAtPosition = 0;
    qint64 anchorsElsewhere = 0;
};

} // namespace velorx
