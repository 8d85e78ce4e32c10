#include "support/FaultVfs.h"

#include <algorithm>
#include <utility>

namespace sorvane {

namespace {

using Operation = FaultVfs::Operation;

FaultVfs& LayerOf(sqlite3_file* file) { return static_cast<FaultVfs&>(*OfLayer(file).layer); }
bool Fails(sqlite3_file* file, Operation operation) { return LayerOf(file).Fails(operation); }

int Read(sqlite3_file* file, void* to, int bytes, sqlite3_int64 at) {
    if (Fails(file, Operation::Read)) return SQLITE_IOERR_READ;
    return MethodsOf(file).xRead(OfSystem(file), to, bytes, at);
}

int Write(sqlite3_file* file, const void* from, int bytes, sqlite3_int64 at) {
    const auto write = [&](int part) { return MethodsOf(file).xWrite(OfSystem(file), from, part, at); };
    if (Fails(file, Operation::Write)) {
        write(bytes / 2);
        return SQLITE_IOERR_WRITE;
    }
    const int fitting = LayerOf(file).Fitting(bytes);
    const int result = write(fitting);
    return fitting < bytes ? SQLITE_FULL : result;
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
    if (Fails(file, Operation::Truncate)) return SQLITE_IOERR_TRUNCATE;
    return MethodsOf(file).xTruncate(OfSystem(file), size);
}

int Sync(sqlite3_file* file, int) { return Fails(file, Operation::Sync) ? SQLITE_IOERR_FSYNC : SQLITE_OK; }

int Lock(sqlite3_file* file, int lock) {
    if (LayerOf(file).IsHeld()) return SQLITE_BUSY;
    if (Fails(file, Operation::Lock)) return SQLITE_IOERR_LOCK;
    return MethodsOf(file).xLock(OfSystem(file), lock);
}

const sqlite3_io_methods Methods = [] {
    sqlite3_io_methods methods = MethodsThatHandOn();
    methods.xRead = Read;
    methods.xWrite = Write;
    methods.xTruncate = Truncate;
    methods.xSync = Sync;
    methods.xLock = Lock;
    return methods;
}();

FaultVfs& VfsOf(sqlite3_vfs* vfs) { return static_cast<FaultVfs&>(*static_cast<FileLayer*>(vfs->pAppData)); }

int Open(sqlite3_vfs* vfs, const char* path, sqlite3_file* file, int flags, int* result) {
    file->pMethods = nullptr;
    if (VfsOf(vfs).Fails(Operation::Open)) return SQLITE_CANTOPEN;
    OfLayer(file).layer = &VfsOf(vfs);
    sqlite3_vfs& system = VfsOf(vfs).System();
    const int opened = system.xOpen(&system, path, OfSystem(file), flags, result);
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

FaultVfs::FaultVfs(std::string name) : FileLayer(std::move(name)) {
    Routines().xOpen = Open;
    Routines().xDelete = Delete;
    Routines().xSleep = Sleep;
}

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
