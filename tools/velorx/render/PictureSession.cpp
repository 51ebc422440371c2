// SPDX-License-Identifier: MIT
#include "tools/velorx/render/PictureSession.h"

#include <QGuiApplication>

#include <clocale>

namespace velorx {

namespace {

constexpr char kPlatform[] = "QT_QPA_PLATFORM";

// Qt warns of things that do not matter here, such as a missing folder for sockets.
void OnlyFatal(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        qInstallMessageHandler(nullptr);
        QMessageLogger(context.file, context.line, context.function)
            .fatal("%s", qPrintable(message));
    }
}

} // namespace

CPictureSession::CPictureSession()
{
    static char program[] = "velorx";
    static char* arguments[] = {program, nullptr};
    static int count = 1;
    if (QCoreApplication::instance() != nullptr) {
        return;
    }
    if (!qEnvironmentVariableIsSet(kPlatform)) {
        qputenv(kPlatform, "offscreen");
    }
    qInstallMessageHandler(OnlyFatal);
    application = std::make_unique<QGuiApplication>(count, arguments);
    // Qt has set the user's.
    static_cast<void>(std::setlocale(LC_NUMERIC, "C")); // NOLINT(concurrency-mt-unsafe)
}

CPictureSession::~CPictureSession()
{
    if (application != nullptr) {
        qInstallMessageHandler(nullptr);
    }
}

} // namespace velorx
