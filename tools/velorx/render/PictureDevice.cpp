// SPDX-License-Identifier: MIT
#include "tools/velorx/render/PictureDevice.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>

namespace velorx {

namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kInchesPerMetre = 1000.0 / 25.4;

std::unique_ptr<QPaintDevice> MakePng(const SPictureJob& /*job*/, const QSize& size,
                                      QFile& /*file*/)
{
    auto image = std::make_unique<QImage>(size, QImage::Format_ARGB32_Premultiplied);
    const int density = static_cast<int>(std::lround(kPixelsPerInch * kInchesPerMetre));
    image->setDotsPerMeterX(density);
    image->setDotsPerMeterY(density);
    image->fill(Qt::transparent);
    return image->isNull() ? nullptr : std::move(image);
}

std::unique_ptr<QPaintDevice> MakeSvg(const SPictureJob& job, const QSize& size, QFile& file)
{
    auto svg = std::make_unique<QSvgGenerator>();
    svg->setOutputDevice(&file);
    svg->setResolution(static_cast<int>(kPixelsPerInch));
    svg->setSize(size);
    svg->setViewBox(QRect(QPoint(0, 0), size));
    svg->setTitle(QFileInfo(job.name).fileName());
    return svg;
}

std::unique_ptr<QPaintDevice> MakePdf(const SPictureJob& job, const QSize& size, QFile& file)
{
    const double points = kPointsPerInch / kPixelsPerInch;
    auto pdf = std::make_unique<QPdfWriter>(&file);
    pdf->setResolution(static_cast<int>(kPixelsPerInch));
    pdf->setPageLayout(
        {QPageSize(QSizeF(size) * points, QPageSize::Point, QString(), QPageSize::ExactMatch),
         QPageLayout::Portrait, QMarginsF()});
    pdf->setTitle(QFileInfo(job.name).fileName());
    return pdf;
}

using CMakeDevice = std::unique_ptr<QPaintDevice> (*)(const SPictureJob& job, const QSize& size,
                                                      QFile& file);

CMakeDevice MakerOf(EPictureFormat format)
{
    switch (format) {
    case EPictureFormat::Svg:
        return MakeSvg;
    case EPictureFormat::Pdf:
        return MakePdf;
    case EPictureFormat::Png:
        break;
    }
    return MakePng;
}

} // namespace

CPictureDevice::CPictureDevice() = default;

CPictureDevice::~CPictureDevice() = default;

QString CPictureDevice::Begin(const SPictureJob& job, const QSize& size)
{
    format = job.format;
    file.setFileName(job.target);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return QStringLiteral("a file for it cannot be opened: ") + file.errorString();
    }
    device = MakerOf(format)(job, size, file);
    if (device == nullptr || !painter.begin(device.get())) {
        return QStringLiteral("there is not enough memory for %1 x %2 pixels")
            .arg(size.width())
            .arg(size.height());
    }
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QColor paper = QColor::fromRgba(job.background);
    if (paper.alpha() > 0) {
        painter.fillRect(QRect(QPoint(0, 0), size), paper);
    }
    return {};
}

QString CPictureDevice::Finish()
{
    bool isWritten = painter.end();
    if (format == EPictureFormat::Png) {
        // By way of memory, since libpng itself complains to standard error of a disk that is full.
        QBuffer content;
        const bool isEncoded = static_cast<QImage&>(*device).save(&content, "PNG");
        isWritten = isEncoded && file.write(content.data()) == content.size() && isWritten;
    }
    device.reset(); // the file is still open, so that what is left in buffers gets there
    isWritten = file.flush() && file.IsWhole() && isWritten;
    file.close();
    return isWritten && file.IsWhole()
        ? QString()
        : QStringLiteral("writing failed, perhaps because the disk is full");
}

} // namespace velorx
