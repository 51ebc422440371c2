// SPDX-License-Identifier: MIT
#pragma once

#include <QLineF>
#include <QPointF>
#include <QtGlobal>

#include <functional>
#include <utility>
#include <vector>

namespace velorx {

/// Takes one straight piece of what is to be drawn, pixels.
using CTakePiece = std::function<void(const QLineF&)>;

/// How many more short pieces a picture can be cut into. Once they are used up, lines become solid, so
/// that no drawing takes for ever.
struct SPieceBudget
{
    qint64 left = 4'000'000;
    bool isExceeded = false; ///< Something became solid for want of pieces.

    bool Take(double count);
};

/// The dashes of a line, pixels. Without any it is solid.
class CDashes
{
public:
    CDashes() = default;

    /// `lengths` as a line type has them: positive draws, negative is a gap, 0 a dot. They are multiplied by
    /// `scale`. Where the result is too fine to be seen, or has no gaps, the line is solid.
    CDashes(const std::vector<double>& lengths, double scale);

    bool IsSolid() const { return dashes.empty(); }

    /// The part of the whole that is drawn, 1 for a solid line.
    double Ink() const;

    /// Hands on what is drawn of the straight line through `zero` in the direction of `along`, a vector of
    /// length 1, between the distances `from` and `to`. The dashes begin at `zero`.
    void Cut(const QLineF& zeroAndAlong, double from, double to, SPieceBudget& budget,
             const CTakePiece& take) const;

private:
    double period = 0.0;
    std::vector<std::pair<double, double>> dashes; ///< From where to where within the period.
};

} // namespace velorx
