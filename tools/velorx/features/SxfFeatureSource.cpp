// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfFeatureSource.h"

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/features/IFeatureSink.h"
#include "tools/velorx/features/SxfFeatures.h"
#include "tools/velorx/formats/SxfHeader.h"
#include "tools/velorx/formats/SxfReading.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <utility>

namespace velorx {

namespace {

constexpr int kCommonScale = 1000;

} // namespace

CSxfFeatureSource::CSxfFeatureSource(QString file, const SReadingOptions& readingOptions)
    : path(std::move(file)), options(readingOptions)
{
}

QString CSxfFeatureSource::Read(IFeatureSink& sink, CFeatureTally& tally)
{
    const SSxfHeader header = ReadSxfHeader(path);
    constexpr qint64 kLargest = std::numeric_limits<int>::max();
    SFeatureHead head;
    head.name = header.name.isEmpty() ? QFileInfo(path).completeBaseName() : header.name;
    head.scale = static_cast<int>(std::clamp(header.scale, qint64{0}, kLargest));
    sink.TakeHead(head);
    CSxfFeatures features(sink, tally, head.scale > 0 ? head.scale : kCommonScale);
    QString problem = ReadSxf(path, header, options.progress, features);
    features.Finish();
    return problem;
}

} // namespace velorx
