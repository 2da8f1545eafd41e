#include "documents/ShowPictures.h"

#include <utility>

#include "core/AppPath.h"
#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/Lookups.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "documents/ShowList.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/system/Paths.h"

namespace documents {

namespace {

constexpr std::string_view kShowProgram = "PhotoReel.exe";

std::string TitleOf(core::RecordKind kind, std::int32_t id) {
    const std::string title = "Vestrel Slide Show";
    const core::RecordKind described = kind == core::kUnitWithBuilding ? core::kUnit : kind;
    const std::string description = core::GetDescription(described, id, 0, false);
    return description.empty() ? title : title + " - " + description;
}

platform::Recordset OpenPictures(core::RecordKind kind, std::int32_t id) {
    if (kind == core::kUnitWithBuilding) {
        return core::Read(
            "SELECT * FROM FileObject "
            "WHERE ((DBType = ?) AND (IdOwner = ?) AND (IsPic = True)) "
            "OR ((DBType = ?) AND (IdOwner = ?) AND (IsPic = True))",
            {core::kUnit, id, core::kBuilding, core::GetUnitBuilding(id)});
    }
    return core::Read(
        "SELECT * FROM FileObject WHERE (DBType = ?) AND (IdOwner = ?) AND (IsPic = True)",
        {kind, id});
}

std::vector<ShowPicture> PicturesOf(core::RecordKind kind, std::int32_t id) {
    platform::Recordset rows = OpenPictures(kind, id);
    std::vector<ShowPicture> pictures;
    for (; !rows.Eof(); rows.MoveNext()) {
        pictures.push_back(
            {platform::TextOf(rows["Description"]), platform::TextOf(rows["FilePath"])});
    }
    return pictures;
}

void Sorry(std::string_view text) {
    platform::TheDialogs().ShowMessage("Sorry", text, platform::Icon::Information);
}

} // namespace

void ShowPictures(core::RecordKind kind, std::int32_t id, std::string title,
                  const ProgramStarter& start) {
    ShowList list{std::move(title), PicturesOf(kind, id)};
    if (list.title.empty()) list.title = TitleOf(kind, id);
    if (list.pictures.empty()) {
        Sorry("No pictures avaliable for this item for slide show.");
        return;
    }
    const std::string listFile = core::App().AppPath + std::string(kShowListFile);
    platform::WriteFileAtomically(listFile, ShowListText(list));
    const std::filesystem::path program = core::SiblingProgram(kShowProgram);
    const bool started = platform::FileExists(program.string()) &&
                         start(program, {std::string(kLoadFileSwitch), listFile});
    if (!started) Sorry("PhotoReel application not found.");
}

} // namespace documents
