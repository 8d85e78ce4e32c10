// The power fails at every moment of every routine that writes. What was synced is on the disk; of what was
// not, any part may be: nothing, all, or a write of which half arrived.
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "faults/Routines.h"
#include "support/RecordingVfs.h"

namespace sorvane {
namespace {

namespace fs = std::filesystem;
using Kind = RecordingVfs::Kind;
using Operation = RecordingVfs::Operation;
using Folder = std::map<std::string, std::string>;  // the bytes of each file by its name

// What becomes of a write, or of a change of the folder, that was not synced.
enum class Fate { Lost, Torn, Done };
using Fates = std::function<Fate(const Operation& operation)>;

// A disk by what was done to it. A folder tells which files there are; each has what was synced, and what
// waits.
class Disk {
  public:
    explicit Disk(const Folder& start) {
        for (const auto& [name, bytes] : start) named_[name] = std::make_shared<File>(File{bytes, {}});
        synced_ = named_;
    }

    void Do(const Operation& operation) {
        switch (operation.kind) {
            case Kind::Create:
                named_[operation.file] = std::make_shared<File>();
                break;
            case Kind::Delete:
                named_.erase(operation.file);
                break;
            case Kind::Write:
            case Kind::Truncate:
                named_.at(operation.file)->waiting.push_back(&operation);
                break;
            case Kind::Sync: {
                File& file = *named_.at(operation.file);
                for (const Operation* waiting : file.waiting) Apply(file.bytes, *waiting, Fate::Done);
                file.waiting.clear();
                // A journal is synced with the folder it stands in.
                if (operation.file.find("-journal") != std::string::npos) synced_ = named_;
                break;
            }
            case Kind::SyncFolder:
                synced_ = named_;
        }
    }

    // What stands there after a cut.
    Folder Cut(bool folderArrived, const Fates& fates) const {
        Folder left;
        for (const auto& [name, file] : folderArrived ? named_ : synced_) {
            std::string bytes = file->bytes;
            for (const Operation* waiting : file->waiting) Apply(bytes, *waiting, fates(*waiting));
            left[name] = std::move(bytes);
        }
        return left;
    }

  private:
    struct File {
        std::string bytes;
        std::vector<const Operation*> waiting;
    };
    using Names = std::map<std::string, std::shared_ptr<File>>;

    static void Apply(std::string& bytes, const Operation& operation, Fate fate) {
        if (fate == Fate::Lost) return;
        const auto at = static_cast<std::size_t>(operation.at);
        if (operation.kind == Kind::Truncate) {
            if (fate == Fate::Done) bytes.resize(at);
            return;
        }
        const std::size_t count = operation.bytes.size() / (fate == Fate::Torn ? 2 : 1);
        if (bytes.size() < at + count) bytes.resize(at + count);
        bytes.replace(at, count, operation.bytes, 0, count);
    }

    Names named_, synced_;
};

// What one run of a routine did, and what stood there after each of its commits.
struct Recorded {
    std::vector<Operation> operations;
    struct Commit {
        std::size_t end;  // operations up to it
        Tables tables;
    };
    std::vector<Commit> commits;  // the first is the file before the run
};

class PowerCuts : public ::testing::TestWithParam<Routine> {
  protected:
    Recorded Record() {
        Recorded recorded;
        world_.Renew();
        vfs_.Take();
        const auto outcome = world_.RunOnce([] {});
        EXPECT_EQ(outcome.errors, Texts{});
        recorded.operations = vfs_.Take();
        recorded.commits.push_back({0, TablesIn(Start())});
        Disk disk(Start());
        for (std::size_t i = 0; i < recorded.operations.size(); ++i) {
            disk.Do(recorded.operations[i]);
            if (recorded.operations[i].kind != Kind::SyncFolder) continue;
            recorded.commits.push_back({i + 1, TablesIn(disk.Cut(true, [](auto&) { return Fate::Done; }))});
        }
        EXPECT_TRUE(recorded.commits.back().tables == outcome.tables);
        return recorded;
    }

    // The tables in a file that was left so. Each is asked for once.
    const Tables& TablesIn(const Folder& folder) {
        const auto [known, isNew] = known_.try_emplace(folder);
        if (isNew) {
            const fs::path place = cut_.Path();
            for (const auto& entry : fs::directory_iterator(place)) fs::remove(entry);
            for (const auto& [name, bytes] : folder) std::ofstream(place / name, std::ios::binary) << bytes;
            known->second = RoutineWorld::ContentOf((place / FileName()).string());
        }
        return known->second;
    }

    // Each cut once the operations up to `end` are done.
    void CutAt(const Recorded& recorded, const Disk& disk, std::size_t end) {
        std::size_t before = 0;
        while (before + 1 < recorded.commits.size() && recorded.commits[before + 1].end <= end) ++before;
        const bool ended = end == recorded.operations.size();
        const Operation* last = end == 0 ? nullptr : &recorded.operations[end - 1];
        const auto expectWhole = [&](const Fates& fates, const char* story) {
            for (const bool folderArrived : {true, false}) {
                const Tables& tables = TablesIn(disk.Cut(folderArrived, fates));
                const bool whole = tables == recorded.commits[before].tables ||
                                   (!ended && before + 1 < recorded.commits.size() &&
                                    tables == recorded.commits[before + 1].tables);
                EXPECT_TRUE(whole) << "cut behind operation " << end << ", " << story
                                   << (folderArrived ? "" : ", the folder as it was");
                ++cuts_;
            }
        };
        expectWhole([](auto&) { return Fate::Done; }, "all arrived");
        expectWhole([](auto&) { return Fate::Lost; }, "nothing arrived");
        expectWhole([&](auto& of) { return &of == last ? Fate::Torn : Fate::Done; }, "the last torn");
        expectWhole([&](auto& of) { return &of == last ? Fate::Done : Fate::Lost; }, "the last alone");
        for (int again = 0; again < 2; ++again)
            expectWhole([&](auto&) { return static_cast<Fate>(random_() % 3); }, "some arrived");
    }

    Folder Start() const { return world_.fresh.empty() ? Folder{} : Folder{{FileName(), world_.fresh}}; }
    std::string FileName() const { return fs::path(world_.path).filename().string(); }

    // A player who comes back finds no box, and can do the same again.
    void ExpectUsable(const Folder& folder) {
        if (!used_.insert(folder).second) return;
        world_.Renew();
        for (const auto& [name, bytes] : folder)
            std::ofstream(fs::path(world_.path).parent_path() / name, std::ios::binary) << bytes;
        EXPECT_EQ(world_.RunOnce([] {}).errors, Texts{});
    }

    RecordingVfs vfs_{"recording"};
    RoutineWorld world_{GetParam(), vfs_.Name()};
    TempFolder cut_;
    std::map<Folder, Tables> known_;
    std::set<Folder> used_;
    std::mt19937 random_{20261122};
    int cuts_ = 0;
};

TEST_P(PowerCuts, LeaveOfEachRoutineAllOfItsRowsOrNone) {
    const Recorded recorded = Record();
    EXPECT_EQ(recorded.commits.size() - 1, static_cast<std::size_t>(GetParam().commits));
    Disk disk(Start());
    for (std::size_t end = 0; end <= recorded.operations.size() && !HasFailure(); ++end) {
        if (end > 0) disk.Do(recorded.operations[end - 1]);
        CutAt(recorded, disk, end);
        ExpectUsable(disk.Cut(false, [](auto&) { return Fate::Lost; }));
    }
    EXPECT_GT(cuts_, 100);
}

std::vector<Routine> Writing() {
    std::vector<Routine> writing;
    for (const Routine& routine : Routines())
        if (routine.commits > 0) writing.push_back(routine);
    return writing;
}

INSTANTIATE_TEST_SUITE_P(Rooms, PowerCuts, ::testing::ValuesIn(Writing()),
                         [](const auto& routine) { return std::string(routine.param.name); });

}  // namespace
}  // namespace sorvane
