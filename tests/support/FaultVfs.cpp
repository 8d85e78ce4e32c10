#include "support/FaultVfs.h"

#include <algorithm>
#include <utility>

namespace sorvane {

namespace {

using Operation = FaultVfs::Operation;

// SQLite lays this out in memory of its own; the system's file stands right behind it.
struct FaultFile {
    sqlite3_file base;
    FaultVfs* vfs;
};

FaultFile& Mine(sqlite3_file* file) { return *reinterpret_cast<FaultFile*>(file); }
sqlite3_file* Theirs(sqlite3_file* file) { return reinterpret_cast<sqlite3_file*>(&Mine(file) + 1); }
const sqlite3_io_methods& MethodsOf(sqlite3_file* file) { return *Theirs(file)->pMethods; }
bool Fails(sqlite3_file* file, Operation operation) { return Mine(file).vfs->Fails(operation); }

int Close(sqlite3_file* file) { return MethodsOf(file).xClose(Theirs(file)); }

int Read(sqlite3_file* file, void* to, int bytes, sqlite3_int64 at) {
    if (Fails(file, Operation::Read)) return SQLITE_IOERR_READ;
    return MethodsOf(file).xRead(Theirs(file), to, bytes, at);
}

int Write(sqlite3_file* file, const void* from, int bytes, sqlite3_int64 at) {
    const auto write = [&](int part) { return MethodsOf(file).xWrite(Theirs(file), from, part, at); };
    if (Fails(file, Operation::Write)) {
        write(bytes / 2);
        return SQLITE_IOERR_WRITE;
    }
    const int fitting = Mine(file).vfs->Fitting(bytes);
    const int result = write(fitting);
    return fitting < bytes ? SQLITE_FULL : result;
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
    if (Fails(file, Operation::Truncate)) return SQLITE_IOERR_TRUNCATE;
    return MethodsOf(file).xTruncate(Theirs(file), size);
}

int Sync(sqlite3_file* file, int) { return Fails(file, Operation::Sync) ? SQLITE_IOERR_FSYNC : SQLITE_OK; }

int FileSize(sqlite3_file* file, sqlite3_int64* size) {
    return MethodsOf(file).xFileSize(Theirs(file), size);
}

int Lock(sqlite3_file* file, int lock) {
    if (Mine(file).vfs->IsHeld()) return SQLITE_BUSY;
    if (Fails(file, Operation::Lock)) return SQLITE_IOERR_LOCK;
    return MethodsOf(file).xLock(Theirs(file), lock);
}

int Unlock(sqlite3_file* file, int lock) { return MethodsOf(file).xUnlock(Theirs(file), lock); }
int CheckReservedLock(sqlite3_file* file, int* result) {
    return MethodsOf(file).xCheckReservedLock(Theirs(file), result);
}
int FileControl(sqlite3_file* file, int code, void* argument) {
    return MethodsOf(file).xFileControl(Theirs(file), code, argument);
}
int SectorSize(sqlite3_file* file) { return MethodsOf(file).xSectorSize(Theirs(file)); }
int DeviceCharacteristics(sqlite3_file* file) { return MethodsOf(file).xDeviceCharacteristics(Theirs(file)); }

// Without shared memory and mapped files, which nothing here needs.
constexpr sqlite3_io_methods Methods = {1,
                                        Close,
                                        Read,
                                        Write,
                                        Truncate,
                                        Sync,
                                        FileSize,
                                        Lock,
                                        Unlock,
                                        CheckReservedLock,
                                        FileControl,
                                        SectorSize,
                                        DeviceCharacteristics,
                                        nullptr,
                                        nullptr,
                                        nullptr,
                                        nullptr,
                                        nullptr,
                                        nullptr};

FaultVfs& VfsOf(sqlite3_vfs* vfs) { return *static_cast<FaultVfs*>(vfs->pAppData); }

int Open(sqlite3_vfs* vfs, const char* path, sqlite3_file* file, int flags, int* result) {
    file->pMethods = nullptr;
    if (VfsOf(vfs).Fails(Operation::Open)) return SQLITE_CANTOPEN;
    Mine(file).vfs = &VfsOf(vfs);
    sqlite3_vfs& system = VfsOf(vfs).System();
    const int opened = system.xOpen(&system, path, Theirs(file), flags, result);
    if (opened == SQLITE_OK) file->pMethods = &Methods;
    return opened;
}

int Delete(sqlite3_vfs* vfs, const char* path, int) {
    if (VfsOf(vfs).Fails(Operation::Delete)) return SQLITE_IOERR_DELETE;
    sqlite3_vfs& system = VfsOf(vfs).System();
    return system.xDelete(&system, path, 0);
}

int Sleep(sqlite3_vfs* vfs, int microseconds) {
    VfsOf(vfs).Wait(std::chrono::microseconds(microseconds));
    return microseconds;
}

}  // namespace

FaultVfs::FaultVfs(std::string name)
    : name_(std::move(name)), system_(sqlite3_vfs_find(nullptr)), vfs_(*system_) {
    vfs_.szOsFile += static_cast<int>(sizeof(FaultFile));
    vfs_.pNext = nullptr;
    vfs_.zName = name_.c_str();
    vfs_.pAppData = this;
    vfs_.xOpen = Open;
    vfs_.xDelete = Delete;
    vfs_.xSleep = Sleep;
    sqlite3_vfs_register(&vfs_, 0);
}

FaultVfs::~FaultVfs() { sqlite3_vfs_unregister(&vfs_); }

void FaultVfs::Heal() {
    counts_.fill(0);
    failures_ = 0;
    waited_ = {};
    failAt_ = 0;
    dieAt_ = 0;
    heldFrom_ = 0;
    locks_ = 0;
    changes_ = 0;
    room_ = std::numeric_limits<std::int64_t>::max();
}

void FaultVfs::FailAt(Operation operation, int n, Lasting lasting) {
    Heal();
    failing_ = operation;
    failAt_ = n;
    lasting_ = lasting;
}

void FaultVfs::DieAt(int n) {
    Heal();
    dieAt_ = n;
}

void FaultVfs::HeldFrom(int n) {
    Heal();
    heldFrom_ = n;
}

void FaultVfs::FullAfter(std::int64_t bytes) {
    Heal();
    room_ = bytes;
}

bool FaultVfs::Fails(Operation operation) {
    const int count = ++counts_[static_cast<std::size_t>(operation)];
    constexpr std::array Changes = {Operation::Write, Operation::Truncate, Operation::Sync,
                                    Operation::Delete};
    if (std::find(Changes.begin(), Changes.end(), operation) != Changes.end()) ++changes_;
    const bool dead = dieAt_ != 0 && changes_ >= dieAt_;
    const bool failing = failAt_ != 0 && operation == failing_ &&
                         (lasting_ == Lasting::Always ? count >= failAt_ : count == failAt_);
    if (dead || failing) ++failures_;
    return dead || failing;
}

bool FaultVfs::IsHeld() {
    const bool held = heldFrom_ != 0 && ++locks_ >= heldFrom_;
    if (held) ++failures_;
    return held;
}

int FaultVfs::Fitting(int bytes) {
    const auto fitting = static_cast<int>(std::min<std::int64_t>(bytes, room_));
    room_ -= fitting;
    if (fitting < bytes) ++failures_;
    return fitting;
}

const char* NameOf(FaultVfs::Operation operation) {
    constexpr std::array Names = {"open", "read", "write", "truncate", "sync", "lock", "delete"};
    return Names[static_cast<std::size_t>(operation)];
}

}  // namespace sorvane
