// A disk that remembers what was done to it: a file layer for SQLite over the system's own.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "support/FileLayer.h"

namespace sorvane {

// Nothing is really synced: the record tells what would be.
class RecordingVfs : public FileLayer {
  public:
    // SyncFolder: what was made and deleted in the folder before is on the disk. SQLite syncs it with a file
    // that it made, and behind a file that it deletes for good.
    enum class Kind { Create, Write, Truncate, Sync, Delete, SyncFolder };
    struct Operation {
        Kind kind;
        std::string file = {};   // its name without its folder
        std::int64_t at = 0;     // where a write begins; the length behind a truncation
        std::string bytes = {};  // of a write
    };

    explicit RecordingVfs(std::string name);

    // Everything since the start, or since the last call.
    std::vector<Operation> Take();

    // For the file layer.
    void Note(Operation operation) { operations_.push_back(std::move(operation)); }
    const std::string& Keep(const std::string& file) { return *files_.insert(file).first; }

  private:
    std::set<std::string> files_;
    std::vector<Operation> operations_;
};

}  // namespace sorvane
