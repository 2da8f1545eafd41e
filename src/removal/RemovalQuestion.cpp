#include "removal/RemovalQuestion.h"

#include <fmt/core.h>

#include "core/RecordKinds.h"
#include "core/Session.h"
#include "removal/RemovalTable.h"

namespace removal {

namespace {

std::string CountedText(const KindRemoval& removal, std::int32_t id) {
    std::string list;
    for (const Counted& one : removal.counted) {
        const std::int32_t count =
            core::CountRecords(one.table, fmt::format("{} = {}", one.field, id));
        if (count != 0) list += fmt::format("{}{}\n", count, one.words);
    }
    if (list.empty()) {
        return fmt::format(
            "Removing this {} will cause any references to it to be lost.\n\n"
            "Do you wish to continue?",
            removal.thing);
    }
    return fmt::format(
        "This {} is linked to the following critical items:\n\n{}"
        "These items will be removed. Also, any other references to this {}.\n"
        "will be lost.\n\n"
        "Do you wish to continue?",
        removal.thing, list, removal.referred);
}

} // namespace

std::optional<RemovalQuestion> QuestionBefore(core::RecordKind kind, std::int32_t id) {
    const KindRemoval* const removal = RemovalOf(kind);
    if (removal == nullptr) return std::nullopt;
    return RemovalQuestion{std::string(removal->title), removal->question.empty()
                                                            ? CountedText(*removal, id)
                                                            : std::string(removal->question)};
}

} // namespace removal
