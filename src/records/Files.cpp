#include "records/Files.h"

#include <system_error>
#include <utility>

#include "platform/SystemFiles.h"
#include "platform/Text.h"

namespace sorvane::Records {

namespace {

fs::path With(const fs::path& path, std::string_view ending) {
    fs::path longer = path;
    longer += ending;
    return longer;
}

fs::path FolderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

}  // namespace

NewFile::NewFile(fs::path place) : place_(std::move(place)), path_(With(place_, ".part")) { Remove(); }

void NewFile::Remove() const {
    std::error_code none;
    for (const char* ending : {"", "-journal"}) fs::remove(With(path_, ending), none);
}

void NewFile::Put() {
    std::error_code error;
    SyncToDisk(path_);
    fs::rename(path_, place_, error);
    if (error) Raise(ErrorNumber::PathFileAccess);
    SyncToDisk(FolderOf(place_));
}

void NewFile::PutIfFree() {
    std::error_code error;
    SyncToDisk(path_);
    fs::create_hard_link(path_, place_, error);
    // Some file systems know no second names. There it takes two steps to look and to put.
    if (error && !fs::exists(place_)) return Put();
    if (error) Raise(ErrorNumber::PathFileAccess);
    SyncToDisk(FolderOf(place_));
}

void MakeFolders(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder, error)) Raise(ErrorNumber::PathFileAccess);
}

fs::path FreeName(const fs::path& folder, const std::string& name, std::string_view ending) {
    fs::path free = folder / (name + std::string(ending));
    for (long next = 2; fs::exists(free); ++next)
        free = folder / (name + "-" + Str(next) + std::string(ending));
    return free;
}

}  // namespace sorvane::Records
