// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/FeatureRecorder.h"
#include "tools/velorx/features/DxfFeatureTarget.h"
#include "tools/velorx/features/FeatureTally.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <memory>
#include <string>

namespace velorx::test {

/// A drawing that is made of features. Text counts as windows-1251 while this lives, as drawings are written.
class CDxfWritten
{
public:
    explicit CDxfWritten(int version = 1018);
    CDxfWritten(const CDxfWritten&) = delete;
    CDxfWritten& operator=(const CDxfWritten&) = delete;
    ~CDxfWritten();

    IFeatureTarget& operator*() const { return *target; }

    /// What the target calls what it made of a feature, "null" for nothing.
    template <class TFeature>
    std::string Take(const TFeature& feature)
    {
        const char* as = target->Take(feature);
        return as != nullptr ? as : "null";
    }

    /// Finishes the drawing. Each problem that the checker finds fails the test.
    QByteArray Bytes();

    /// The entities, one group a line; once finished or not.
    std::string Entities();

    /// The drawing as our own source reads it.
    CFeatureRecorder& ReadBack();
    void ReadBackTo(IFeatureSink& sink);

    /// How often `what` was lost in writing, and on which layers: "2: Roads 1, Houses 1".
    std::string Lost(const char* what) const;

    /// All losses of writing, or of reading back, one a line, but for those that every drawing has.
    std::string Losses() const;
    std::string LossesOfReading() const;

    std::string Log() const { return target->Log().toStdString(); }

private:
    QTextCodec* codecBefore;
    QTemporaryDir folder;
    CFeatureTally tally;
    CFeatureTally tallyOfReading;
    std::unique_ptr<CDxfFeatureTarget> target;
    QByteArray bytes;
    CFeatureRecorder recorder;
};

} // namespace velorx::test
