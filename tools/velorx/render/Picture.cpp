// SPDX-License-Identifier: MIT
#include "tools/velorx/render/Picture.h"

#include "tools/velorx/features/FeatureFormats.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/render/DrawSource.h"
#include "tools/velorx/render/PictureSession.h"

namespace velorx {

QString WhyNoPictures()
{
    return {};
}

QString DrawPicture(const SPictureJob& job, CConversionReport& report)
{
    const CPictureSession session;
    SReadingOptions options;
    options.progress = job.progress;
    const auto source = MakeFeatureSource(job.family, job.source, options);
    if (source == nullptr) {
        return QStringLiteral("there is no way to draw this format");
    }
    return DrawSource(*source, job, report);
}

} // namespace velorx
