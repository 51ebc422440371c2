// SPDX-License-Identifier: MIT
// Stands in for all that draws, where velorx is built without QtSvg.
#include "tools/velorx/render/Picture.h"

namespace velorx {

QString WhyNoPictures()
{
    return QStringLiteral(
        "this build of velorx makes no pictures, since Qt's SVG module was missing "
        "when it was built");
}

QString DrawPicture(const SPictureJob& /*job*/, CConversionReport& /*report*/)
{
    return WhyNoPictures();
}

} // namespace velorx
