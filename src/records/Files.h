// Files that come into their place whole or not at all.
#pragma once

#include <string>
#include <string_view>

#include "records/Outside.h"

namespace sorvane::Records {

// A file under construction, beside the place that it is for. What was not put there is removed.
class NewFile {
  public:
    explicit NewFile(fs::path place);
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile() { Remove(); }

    const fs::path& Path() const { return path_; }
    // Takes the place, in one step; what stood there is gone. Synced.
    void Put();
    // The same where nothing stands yet; raises 75 when something does by now.
    void PutIfFree();

  private:
    void Remove() const;
    fs::path place_;
    fs::path path_;
};

// The folder and those above it. Raises 75.
void MakeFolders(const fs::path& folder);
// "folder/name.mdb", or "folder/name-2.mdb" and so on where the first are taken.
fs::path FreeName(const fs::path& folder, const std::string& name, std::string_view ending);

}  // namespace sorvane::Records
