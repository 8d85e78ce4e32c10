#include "support/RecordingVfs.h"

#include <filesystem>
#include <utility>

namespace sorvane {

namespace {

using Kind = RecordingVfs::Kind;

// SQLite lays this out in memory of its own; the system's file stands right behind it.
struct RecordedFile {
    sqlite3_file base;
    RecordingVfs* vfs;
    const std::string* name;
};

RecordedFile& Mine(sqlite3_file* file) { return *reinterpret_cast<RecordedFile*>(file); }
sqlite3_file* Theirs(sqlite3_file* file) { return reinterpret_cast<sqlite3_file*>(&Mine(file) + 1); }
const sqlite3_io_methods& MethodsOf(sqlite3_file* file) { return *Theirs(file)->pMethods; }
void Note(sqlite3_file* file, Kind kind, std::int64_t at = 0, std::string bytes = {}) {
    Mine(file).vfs->Note({kind, *Mine(file).name, at, std::move(bytes)});
}

int Close(sqlite3_file* file) { return MethodsOf(file).xClose(Theirs(file)); }
int Read(sqlite3_file* file, void* to, int bytes, sqlite3_int64 at) {
    return MethodsOf(file).xRead(Theirs(file), to, bytes, at);
}
int Write(sqlite3_file* file, const void* from, int bytes, sqlite3_int64 at) {
    Note(file, Kind::Write, at, std::string(static_cast<const char*>(from), static_cast<std::size_t>(bytes)));
    return MethodsOf(file).xWrite(Theirs(file), from, bytes, at);
}
int Truncate(sqlite3_file* file, sqlite3_int64 size) {
    Note(file, Kind::Truncate, size);
    return MethodsOf(file).xTruncate(Theirs(file), size);
}
int Sync(sqlite3_file* file, int) {
    Note(file, Kind::Sync);
    return SQLITE_OK;
}
int FileSize(sqlite3_file* file, sqlite3_int64* size) {
    return MethodsOf(file).xFileSize(Theirs(file), size);
}
int Lock(sqlite3_file* file, int lock) { return MethodsOf(file).xLock(Theirs(file), lock); }
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

RecordingVfs& VfsOf(sqlite3_vfs* vfs) { return *static_cast<RecordingVfs*>(vfs->pAppData); }
std::string NameOf(const char* path) { return std::filesystem::path(path).filename().string(); }

int Open(sqlite3_vfs* vfs, const char* path, sqlite3_file* file, int flags, int* result) {
    file->pMethods = nullptr;
    sqlite3_vfs& system = VfsOf(vfs).System();
    // A file without a name is a scratch file of SQLite's own.
    if (path == nullptr) return SQLITE_CANTOPEN;
    const bool made = !std::filesystem::exists(path);
    Mine(file).vfs = &VfsOf(vfs);
    Mine(file).name = &VfsOf(vfs).Keep(NameOf(path));
    const int opened = system.xOpen(&system, path, Theirs(file), flags, result);
    if (opened != SQLITE_OK) return opened;
    file->pMethods = &Methods;
    if (made) Note(file, Kind::Create);
    return SQLITE_OK;
}

int Delete(sqlite3_vfs* vfs, const char* path, int withFolder) {
    sqlite3_vfs& system = VfsOf(vfs).System();
    const int deleted = system.xDelete(&system, path, 0);
    if (deleted == SQLITE_OK) {
        VfsOf(vfs).Note({Kind::Delete, NameOf(path)});
        if (withFolder != 0) VfsOf(vfs).Note({Kind::SyncFolder});
    }
    return deleted;
}

}  // namespace

RecordingVfs::RecordingVfs(std::string name)
    : name_(std::move(name)), system_(sqlite3_vfs_find(nullptr)), vfs_(*system_) {
    vfs_.szOsFile += static_cast<int>(sizeof(RecordedFile));
    vfs_.pNext = nullptr;
    vfs_.zName = name_.c_str();
    vfs_.pAppData = this;
    vfs_.xOpen = Open;
    vfs_.xDelete = Delete;
    sqlite3_vfs_register(&vfs_, 0);
}

RecordingVfs::~RecordingVfs() { sqlite3_vfs_unregister(&vfs_); }

std::vector<RecordingVfs::Operation> RecordingVfs::Take() { return std::exchange(operations_, {}); }

}  // namespace sorvane
