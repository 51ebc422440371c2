// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/FeatureRecorder.h"
#include "tools/velorx/features/FeatureTally.h"

#include <QByteArray>
#include <QString>

namespace velorx::test {

/// A drawing that is written down in a test, and read as features. Groups stand as "code value", and ", " parts
/// them: "0 LINE, 8 Roads, 10 1.5".
class CDxfStream
{
public:
    /// A record of the tables, a layer for example.
    CDxfStream& Table(const char* groups);

    /// A block called `name` with the base point (`x`, `y`).
    CDxfStream& Block(const char* name, const char* groups, double x = 0, double y = 0);

    CDxfStream& Entities(const char* groups);
    CDxfStream& Objects(const char* groups);

    /// Reads the drawing. Chords are off by no more than `chord`.
    CFeatureRecorder& Read(double chord = 0.01);

    /// Once read: how often `what` was lost, and on which layers: "2: Roads 1, Houses 1".
    std::string Lost(const QString& what) const;

    /// Once read: how many of `kind` were met in the drawing and in blocks, "2+3".
    std::string Met(const char* kind) const;

    /// Once read: all losses, one a line, for messages.
    std::string Losses() const;

private:
    QByteArray tables;
    QByteArray blocks;
    QByteArray entities;
    QByteArray objects;
    CFeatureRecorder recorder;
    CConversionReport report;
};

/// The vertices as text: "(0 0) (10 0)", with heights where they are not 0.
std::string PointsOf(const CFeatureLine& line);

/// A number with up to six decimals and no more than it needs.
std::string NumberText(double number);

} // namespace velorx::test
