#include <QApplication>
#include <cstdio>
#include <exception>
#include <span>

#include "core/Globals.h"
#include "core/forms/ProgramLook.h"
#include "dbmender/Diagnosis.h"
#include "dbmender/MenderLine.h"
#include "dbmender/frmDbMender.h"
#include "dbmender/frmWelcome.h"
#include "platform/qt/QtDialogs.h"
#include "platform/system/Process.h"
#include "platform/system/ProgramHelp.h"
#include "shell/Registrations.h"

int main(int argc, char** argv) {
    const std::span all(argv, static_cast<std::size_t>(argc));
    if (platform::AnswerIfAsked(dbmender::MenderHelp(), all)) return 0;
    try {
        const QApplication application(argc, argv);
        core::InitGlobals({});
        const core::forms::ProgramLook look("dbmender", "vestrel");
        platform::SetDialogs(platform::qt::MakeDialogs());
        platform::SetChoosers(platform::qt::MakeChoosers());
        shell::RegisterLogic();

        const std::span words(argv, static_cast<std::size_t>(argc));
        const dbmender::MenderLine line = dbmender::ReadMenderLine(words.subspan(1));
        dbmender::frmDbMender window(line, platform::StartDetached);
        dbmender::frmWelcome welcome;
        QObject::connect(&welcome, &dbmender::frmWelcome::Chosen, &window,
                         [&](dbmender::Beginning beginning) {
                             window.SetupFor(beginning, [&welcome] { welcome.show(); });
                             welcome.hide();
                         });
        if (line.welcomes && dbmender::HasNoBooks(line.dbName)) {
            welcome.show();
        } else {
            window.Setup();
        }
        return QApplication::exec();
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "dbmender: %s\n", failure.what());
        return 1;
    }
}
