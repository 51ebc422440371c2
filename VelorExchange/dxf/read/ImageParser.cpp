// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/DXFReaderImpl_p.h"
#include "VelorExchange/dxf/read/VertexList_p.h"

#include <QFileInfo>

#include <cmath>
#include <cstddef>

namespace VelorExchange::dxf {

namespace {

// Without an extension of two or three characters. It starts at the leftmost dot that leaves so many
// behind it, so that "img.a.b" gives "img".
QString WithoutExtension(const QString& fileName)
{
    for (const int length : {4, 3}) {
        const int dot = fileName.size() - length;
        if (dot >= 0 && fileName.at(dot) == QLatin1Char('.')) {
            return fileName.left(dot);
        }
    }
    return fileName;
}

} // namespace

// IMAGE: waits under the handle of its IMAGEDEF, also when it stands in a block. Absent vectors are zero,
// and the divisions stand as the arithmetic gives them.
CDXFTag CDXFReaderImpl::ReadImage()
{
    const CDXFTag next = tags.ReadObject();
    if (IsPaperSpace()) {
        return next;
    }
    CImageDXF image;
    image.layer = EntityLayer().text;
    image.origin = PlanPoint(Coordinates(), 10, 20);
    image.widthPixels = tags.Double(13);
    image.heightPixels = tags.Double(23);
    image.rotation = std::atan(tags.Double(21) / tags.Double(11));
    image.scaleX = std::abs(tags.Double(11) / std::cos(image.rotation));
    const double slope = std::atan(tags.Double(22) / tags.Double(12));
    image.scaleY = std::abs(tags.Double(22) / std::sin(slope));
    FillClip(image);
    images.insert(tags.Value(340), image);
    return next;
}

void CDXFReaderImpl::FillClip(CImageDXF& image)
{
    tags.SplitDoubles(14, lists[0]);
    tags.SplitDoubles(24, lists[1]);
    const int count = tags.Int(91);
    if (count < 0 || lists[0].size() != static_cast<std::size_t>(count)
        || lists[1].size() != static_cast<std::size_t>(count))
    {
        return;
    }
    for (std::size_t i = 0; i < lists[0].size(); ++i) {
        AppendPoint(image.clip, {lists[0][i], lists[1][i], 0.0});
    }
}

// IMAGEDEF: tells the file of all images that wait for it.
CDXFTag CDXFReaderImpl::ReadImageDef()
{
    const CDXFTag next = tags.ReadObject();
    if (!IsPaperSpace()) {
        DeliverImages(tags.Value(5), tags.Value(1));
    }
    return next;
}

// The most recently stored first. What has been taken does not wait any more.
void CDXFReaderImpl::DeliverImages(const QString& key, const QString& path)
{
    const QFileInfo file(path);
    if (key.isEmpty() || file.filePath().isEmpty()) {
        return;
    }
    const QList<CImageDXF> waiting = images.values(key);
    images.remove(key);
    for (CImageDXF image : waiting) {
        image.filePath = file.filePath();
        image.name = WithoutExtension(file.fileName());
        Deliver(image, &IDXFReader::OnImage);
    }
}

} // namespace VelorExchange::dxf
