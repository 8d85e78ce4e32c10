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

struct BackupWish {
    std::optional<fs::path> to;  // else a name with date and time in the folder of backups
    bool overwrite = false;
    int keep = 0;  // as many of those names stay, the newest; 0: all
};
// Copies the file, also while the program uses it, and looks whether the copy is whole before it takes the
// name. The name goes to standard output.
int Backup(Outside& outside, const Place& place, const BackupWish& wish);
// The same without a word; gives the name.
fs::path MakeBackup(Outside& outside, const Place& place);

// Puts a copy of `from` in the file's place and keeps what stood there beside it. A file with findings is
// refused, and one with faults of rows alone taken with `force`. Refused while another program holds the
// file.
int Restore(Outside& outside, const Place& place, const fs::path& from, bool force);

// Gives the rows of every table the keys 1 to n in the order of their keys; a backup comes first.
int Renumber(Outside& outside, const Place& place);

struct ExportWish {
    fs::path to;  // a folder, or a file of JSON ("-": standard output)
    bool json = false;
    bool overwrite = false;
};
int Export(Outside& outside, const Place& place, const ExportWish& wish);

struct ImportWish {
    fs::path from;  // a folder of CSV files, each with the name of a table
    bool dryRun = false;
    bool newKeys = false;  // the keys of the files are left aside and counted on
};
int Import(Outside& outside, const Place& place, const ImportWish& wish);

// A history of one game; its columns are those of GameFile.
struct HistoryWish {
    std::string game;
    fs::path file;
    std::string columns = {};
    bool dayFirst = false;
    bool replace = false;  // draws: a date that is there already takes the file's numbers
    bool spent = false;    // tickets: their price is booked in Spent, a row for each date
    bool dryRun = false;
};
// Into the Win table of the game, one draw a date, and of its add-on where the file has that.
int Draws(Outside& outside, const Place& place, const HistoryWish& wish);
// Into the Played table, a row for each line.
int Tickets(Outside& outside, const Place& place, const HistoryWish& wish);
// The names of the games: region and caption, key, add-on, parted by tabs.
int ListGames(Outside& outside);

}  // namespace sorvane::Records
