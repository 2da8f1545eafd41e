#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <cstdio>

#include "platform/qt/Appearance.h"

namespace {

/// Leaves out what the platform without a display says of every window.
void Tell(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.contains(QLatin1String("propagateSizeHints"))) return;
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qInstallMessageHandler(Tell);
    const QApplication application(argc, argv);
    // The same font on every machine, so that pictures and widths are comparable.
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 10));
    platform::qt::ApplyAppearance(platform::qt::Appearance::Light);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
