#include "shell/screens/BooksRun.h"

#include <QApplication>

#include "core/MessagePump.h"
#include "shell/RunHistory.h"

namespace shell::screens {

namespace {

class Hourglass {
  public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

} // namespace

void RunBooks(RunDigest& digest) {
    {
        const Hourglass hourglass;
        core::LetMessagesRun();
        RunAndRecord(digest);
    }
    core::LetMessagesRun();
}

} // namespace shell::screens
