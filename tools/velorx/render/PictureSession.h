// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

class QGuiApplication;

namespace velorx {

/// What Qt needs to draw texts, without a screen: made once, ahead of the first picture, and kept until
/// the last. Sets `QT_QPA_PLATFORM` to "offscreen" unless it is set. Qt's own warnings stay silent
/// meanwhile.
class CPictureSession
{
public:
    CPictureSession();
    CPictureSession(const CPictureSession&) = delete;
    CPictureSession(CPictureSession&&) = delete;
    CPictureSession& operator=(const CPictureSession&) = delete;
    CPictureSession& operator=(CPictureSession&&) = delete;
    ~CPictureSession();

private:
    std::unique_ptr<QGuiApplication> application; ///< Null where there is one already.
};

} // namespace velorx
