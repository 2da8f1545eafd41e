#include "support/screens/ScreenFixture.h"

#include "core/forms/OpenForms.h"
#include "support/screens/Driving.h"

namespace support {

ScreenTest::ScreenTest() : person_(std::make_unique<ScriptedDialogs>()) {}

ScreenTest::~ScreenTest() {
    core::forms::CloseAllForms();
    SettleEvents();
}

std::vector<std::string> ScreenTest::Heard() {
    std::vector<std::string> said;
    for (; heard_ < person_->Heard().size(); ++heard_) {
        const Prompt& one = person_->Heard()[heard_];
        said.push_back(one.title + ": " + one.text);
    }
    return said;
}

void ScreenTest::Answer(std::deque<bool> answers) {
    person_.reset();
    person_ = std::make_unique<ScriptedDialogs>(std::move(answers));
    heard_ = 0;
}

} // namespace support
