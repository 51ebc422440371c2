// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/render/Picture.h"

namespace velorx {

class IFeatureSource;

/// `DrawPicture` for a source in hand, which is read twice: for what the picture has to show, and for
/// drawing it. Needs a `CPictureSession`.
QString DrawSource(IFeatureSource& source, const SPictureJob& job, CConversionReport& report);

} // namespace velorx
