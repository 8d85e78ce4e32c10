// What sorvane-records does, one function a command. Each gives the exit status, 0 done or 1 findings, and
// throws Refusal where it could not do its work; then nothing has changed.
#pragma once

#include <optional>
#include <string>

#include "records/Cells.h"
#include "records/Outside.h"

namespace sorvane::Records {

inline constexpr int Done = 0;
inline constexpr int Refused = 1;
inline constexpr int WrongUse = 2;

inline constexpr std::string_view FileName = "sorvane.mdb";
inline constexpr int MostDamageTold = 100;

// The player's records: `folder` is the one named by --data.
struct Place {
    fs::path folder;
    fs::path File() const { return folder / FileName; }
    fs::path Backups() const { return folder / "backups"; }
};

int Show(Outside& outside, const Place& place, bool json);

// One finding or note a line on standard output: "note: " stands before what is no fault.
int Check(Outside& outside, const fs::path& file);

}  // namespace sorvane::Records
