#include <algorithm>
#include <string>
#include <system_error>
#include <vector>

#include "platform/SystemFiles.h"
#include "platform/Text.h"
#include "records/Check.h"
#include "records/Commands.h"
#include "records/Files.h"
#include "records/Tables.h"
#include "store/dao/RecordFile.h"

namespace sorvane::Records {

namespace {

constexpr std::string_view Ending = ".mdb";
constexpr std::string_view BackupStart = "sorvane-";
constexpr std::string_view KeptStart = "sorvane-before-restore-";

void CopyWhole(Outside& outside, const fs::path& from, const fs::path& to, const std::string& what) {
    {
        const Dao::RecordFile file(from, outside.vfs);
        Progress progress(outside, what);
        file.CopyTo(to, [&](int done, int inAll) { progress.Tell(done, inAll); });
    }
    const auto damage = Dao::RecordFile(to, outside.vfs).Damage(1);
    if (!damage.empty())
        throw Refusal(from.string() + " is not whole, so is no copy of it: " + damage.front());
}

void MakeBackupAt(Outside& outside, const Place& place, const fs::path& to) {
    // When there is nothing to copy, that is told of the file and not of the place for the copy.
    Naming(place.File(), [&] { const Dao::RecordFile there(place.File(), outside.vfs); });
    Naming(to, [&] {
        if (to.has_parent_path()) MakeFolders(to.parent_path());
        NewFile copy(to);
        CopyWhole(outside, place.File(), copy.Path(), "Copying");
        copy.Put();
    });
}

// sorvane-2026-11-21-201500.mdb, and what FreeName makes of it.
bool IsBackupName(const std::string& name) {
    constexpr std::string_view Form = "sorvane-dddd-dd-dd-dddddd";
    if (name.size() < Form.size() + Ending.size() || !name.ends_with(Ending)) return false;
    const auto fits = [](char letter, char form) {
        return form == 'd' ? letter >= '0' && letter <= '9' : letter == form;
    };
    if (!std::equal(Form.begin(), Form.end(), name.begin(), [&](char f, char l) { return fits(l, f); }))
        return false;
    const std::string rest = name.substr(Form.size(), name.size() - Form.size() - Ending.size());
    return rest.empty() || (rest.front() == '-' && rest.size() > 1 &&
                            std::all_of(rest.begin() + 1, rest.end(), [&](char l) { return fits(l, 'd'); }));
}

// Oldest first: by date and time, then by the number behind them.
std::vector<fs::path> BackupsIn(const fs::path& folder) {
    std::vector<fs::path> backups;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        if (entry.is_regular_file() && IsBackupName(entry.path().filename().string()))
            backups.push_back(entry.path());
    const auto less = [](const fs::path& a, const fs::path& b) {
        const std::string x = a.stem().string(), y = b.stem().string();
        constexpr std::size_t Stamped = 25;
        const int order = x.compare(0, Stamped, y, 0, Stamped);
        if (order != 0) return order < 0;
        return x.size() != y.size() ? x.size() < y.size() : x < y;
    };
    std::sort(backups.begin(), backups.end(), less);
    return backups;
}

void RemoveOlder(Outside& outside, const fs::path& folder, int keep) {
    const std::vector<fs::path> backups = BackupsIn(folder);
    for (std::size_t i = 0; i + static_cast<std::size_t>(keep) < backups.size(); ++i) {
        std::error_code error;
        fs::remove(backups[i], error);
        outside.words << (error ? "could not remove " : "removed ") << backups[i].string() << '\n';
    }
}

fs::path BackupName(Outside& outside, const Place& place) {
    return FreeName(place.Backups(), std::string(BackupStart) + Stamp(outside.now()), Ending);
}

// Refuses what a check would not accept.
void Accept(Outside& outside, const fs::path& from, bool force) {
    long damage = 0, faults = 0, tables = 0;
    Naming(from, [&] {
        Dao::RecordFile file(from, outside.vfs);
        file.Begin(Dao::RecordFile::Hold::Read);
        for (const Dao::FileTable& table : file.Read().tables)
            if (FindTable(table.name) != nullptr) ++tables;
        Examine(file, outside, [&](const Finding& finding) {
            if (finding.weight == Weight::Note) return;
            ++(finding.weight == Weight::Damage ? damage : faults);
            outside.words << finding.text << '\n';
        });
    });
    if (tables == 0) throw Refusal(from.string() + ": this is a database, but none of Sorvane's");
    if (damage > 0) throw Refusal(from.string() + ": this is no sound file of Sorvane; nothing was restored");
    if (faults > 0 && !force)
        throw Refusal(from.string() + ": " + Counted(faults, "finding") +
                      "; nothing was restored (--force takes the file all the same)");
}

// The present file, held so that no other program has it meanwhile, if it can be read at all.
class Present {
  public:
    Present(Outside& outside, const fs::path& path) : path_(path) {
        const int error = ErrorOf([&] {
            held_ = std::make_unique<Dao::RecordFile>(path, outside.vfs);
            held_->Begin(Dao::RecordFile::Hold::Alone);
        });
        if (error == 0) return;
        held_.reset();
        if (error == ErrorNumber::NotADatabase) damaged_ = true;
        else if (error != ErrorNumber::StoreFileNotFound) Raise(error);
    }

    // Gives the file a second name. While it is held nothing else may open it: closing it again would give up
    // the lock.
    void KeepAs(const fs::path& name) {
        if (!held_ && !damaged_) return;
        kept_ = name;
        std::error_code error;
        fs::create_hard_link(path_, name, error);
        if (!error) return;
        if (held_) held_->CopyTo(name, [](int, int) {});
        else fs::copy_file(path_, name);
    }
    // The engine would take a journal that lies beside the damaged file for one of the new file.
    void MoveItsJournals() const {
        for (const char* ending : {"-journal", "-wal", "-shm"}) {
            std::error_code none;
            if (damaged_) fs::rename(path_.string() + ending, kept_.string() + ending, none);
        }
    }
    void DropName() const {
        std::error_code none;
        if (!kept_.empty()) fs::remove(kept_, none);
    }
    const fs::path& Kept() const { return kept_; }

  private:
    fs::path path_;
    fs::path kept_;
    std::unique_ptr<Dao::RecordFile> held_;
    bool damaged_ = false;
};

}  // namespace

fs::path MakeBackup(Outside& outside, const Place& place) {
    fs::path name = BackupName(outside, place);
    MakeBackupAt(outside, place, name);
    return name;
}

int Backup(Outside& outside, const Place& place, const BackupWish& wish) {
    if (wish.to && fs::exists(*wish.to)) {
        std::error_code none;
        if (fs::equivalent(*wish.to, place.File(), none))
            throw Refusal(wish.to->string() + ": this is the file itself");
        if (!wish.overwrite || !fs::is_regular_file(*wish.to))
            throw Refusal(wish.to->string() + ": this is there already (--force writes over a file)");
    }
    fs::path name;
    if (wish.to) MakeBackupAt(outside, place, name = *wish.to);
    else name = MakeBackup(outside, place);
    outside.data << name.string() << '\n';
    if (wish.keep > 0) RemoveOlder(outside, place.Backups(), wish.keep);
    return Done;
}

int Restore(Outside& outside, const Place& place, const fs::path& from, bool force) {
    std::error_code none;
    if (fs::equivalent(from, place.File(), none)) throw Refusal(from.string() + ": this is the file itself");
    Accept(outside, from, force);
    Naming(place.File(), [&] {
        MakeFolders(place.folder);
        NewFile copy(place.File());
        CopyWhole(outside, from, copy.Path(), "Copying");
        Present present(outside, place.File());
        try {
            present.KeepAs(FreeName(place.folder, std::string(KeptStart) + Stamp(outside.now()), Ending));
            SyncToDisk(place.folder);
            present.MoveItsJournals();
            copy.Put();
        } catch (...) {
            present.DropName();
            throw;
        }
        if (!present.Kept().empty())
            outside.words << "the file that stood here is kept as " << present.Kept().string() << '\n';
    });
    outside.words << "restored " << place.File().string() << " from " << from.string() << '\n';
    return Done;
}

namespace {

bool HasKeys(const Dao::FileTable& found) {
    const Table* table = FindTable(found.name);
    return table != nullptr && table->creator->indexed && !found.fields.empty() &&
           SameWord(found.fields.front().name, PrimaryFieldName);
}

bool IsInOrder(const Dao::RecordFile& file, const Dao::FileTable& table) {
    Dao::Rows rows = file.AllRows(table, Dao::Order::ByKey);
    rows.Restart();
    for (std::int64_t next = 1; rows.Next(); ++next) {
        const Dao::Value key = rows.At(0);
        const auto* number = std::get_if<std::int64_t>(&key.Get());
        if (number == nullptr || *number != next) return false;
    }
    return true;
}

bool AllInOrder(const Place& place, const std::string& vfs) {
    Dao::RecordFile file(place.File(), vfs);
    file.Begin(Dao::RecordFile::Hold::Read);
    const auto tables = file.Read().tables;
    return std::all_of(tables.begin(), tables.end(), [&](const Dao::FileTable& table) {
        return !HasKeys(table) || IsInOrder(file, table);
    });
}

}  // namespace

int Renumber(Outside& outside, const Place& place) {
    if (Naming(place.File(), [&] { return AllInOrder(place, outside.vfs); })) {
        outside.words << place.File().string() << ": every key is in its place\n";
        return Done;
    }
    const fs::path backup = MakeBackup(outside, place);
    outside.words << "a backup is in " << backup.string() << '\n';
    std::string told;
    Naming(place.File(), [&] {
        Dao::RecordFile file(place.File(), outside.vfs);
        file.Begin(Dao::RecordFile::Hold::Write);
        for (const Dao::FileTable& table : file.Read().tables) {
            if (!HasKeys(table)) continue;
            const int changed = file.CountAnew(table, PrimaryFieldName);
            if (changed > 0) told += table.name + ": " + Counted(changed, "key") + " counted anew\n";
        }
        file.Commit();
    });
    outside.words << told;
    return Done;
}

}  // namespace sorvane::Records
