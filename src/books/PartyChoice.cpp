#include "books/PartyChoice.h"

#include "platform/values/Text.h"

namespace books {

std::int32_t PartyIdOf(const core::ChoiceList& box) {
    if (box.Selected()) return box.Rows()[*box.Selected()].id;
    if (box.Rows().empty()) return 0;
    const core::Choice& first = box.Rows().front();
    return platform::EqualIgnoringCase(box.Text(), first.text) ? first.id : 0;
}

} // namespace books
