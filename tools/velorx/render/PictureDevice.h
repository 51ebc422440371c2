// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/render/Picture.h"
#include "tools/velorx/render/PictureFile.h"

#include <QPainter>
#include <QSize>

#include <memory>

class QPaintDevice;

namespace velorx {

/// A picture's file and what is painted into it.
class CPictureDevice
{
public:
    CPictureDevice();
    CPictureDevice(const CPictureDevice&) = delete;
    CPictureDevice(CPictureDevice&&) = delete;
    CPictureDevice& operator=(const CPictureDevice&) = delete;
    CPictureDevice& operator=(CPictureDevice&&) = delete;
    ~CPictureDevice();

    /// Opens `job.target` for a picture of `size` pixels and paints its background. Empty on success,
    /// otherwise why not.
    QString Begin(const SPictureJob& job, const QSize& size);

    /// Active between `Begin` and `Finish`; its unit is a pixel.
    QPainter& Painter() { return painter; }

    /// Writes the file. Empty on success, otherwise why not.
    QString Finish();

private:
    CPictureFile file;
    std::unique_ptr<QPaintDevice> device;
    QPainter painter; // ends before what it paints on
    EPictureFormat format = EPictureFormat::Png;
};

} // namespace velorx
