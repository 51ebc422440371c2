// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfTextHabits.h"

#include <cmath>

namespace velorx {

namespace {

constexpr int kPieceCode = 3;
constexpr int kPiece = 250; // characters

bool IsNear(double a, double b)
{
    constexpr double kNear = 1e-9;
    return std::fabs(a - b) <= kNear;
}

} // namespace

void CDxfTextHabits::TakePiece(int code, const QString& piece)
{
    isRegular = isRegular && (code == kPieceCode ? piece.size() == kPiece : piece.size() <= kPiece);
}

// A text that is not set by its left end has that other point in groups 11 and 21.
void CDxfTextHabits::Take(const SDxfSurveyEntity& entity)
{
    const CDxfGroups& groups = entity.groups;
    if (entity.kind == "MTEXT") {
        if (groups.Count(kPieceCode) > 1) {
            ++seams[entity.layer];
        }
    } else if ((entity.kind == "TEXT" || entity.kind == "ATTRIB") && groups.Integer(72) != 0
               && groups.Has(11))
    {
        const bool isSame = IsNear(groups.Number(10), groups.Number(11))
            && IsNear(groups.Number(20), groups.Number(21));
        ++(isSame ? anchorsAtPosition : anchorsElsewhere);
    }
}

// A semicolon stands between each two pieces of the usual length, none before what is left.
QString CDxfTextHabits::WithoutSeams(const QString& text) const
{
    const int pieces = (text.size() + 1) / (kPiece + 1);
    if (!isRegular || pieces < 2) {
        return text;
    }
    QString whole;
    for (int i = 0; i < pieces; ++i) {
        const int begin = i * (kPiece + 1);
        if (i + 1 < pieces && text.at(begin + kPiece) != QLatin1Char(';')) {
            return text; // put together by no such rule
        }
        whole += text.mid(begin, kPiece);
    }
    return whole + text.mid(pieces * (kPiece + 1) - 1);
}

void CDxfTextHabits::AddLosses(CDxfTally& tally) const
{
    for (auto entry = seams.begin(); entry != seams.end() && !isRegular; ++entry) {
        tally.Lose(EDxfLoss::TextSeams, entry.key(), entry.value());
    }
}

} // namespace velorx
