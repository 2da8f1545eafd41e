#include <QApplication>
#include <cstdio>
#include <exception>
#include <span>
#include <string>
#include <vector>

#include "photoreel/frmPhotoReel.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/Icons.h"

int main(int argc, char** argv) {
    try {
        const QApplication application(argc, argv);
        QApplication::setApplicationName(QStringLiteral("PhotoReel"));
        QApplication::setWindowIcon(platform::qt::LoadIcon(QStringLiteral("picture")));
        const platform::qt::DesktopAppearance appearance;
        const std::span words(argv, static_cast<std::size_t>(argc));
        const std::vector<std::string> arguments(words.begin() + 1, words.end());

        photoreel::frmPhotoReel window;
        window.Setup(photoreel::ListFileOf(arguments));
        return QApplication::exec();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "PhotoReel: %s\n", failure.what());
        return 1;
    }
}
