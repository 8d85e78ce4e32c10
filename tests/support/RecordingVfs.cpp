#include "support/RecordingVfs.h"

#include <filesystem>
#include <utility>

namespace sorvane {

namespace {

using Kind = RecordingVfs::Kind;

RecordingVfs& LayerOf(sqlite3_file* file) { return static_cast<RecordingVfs&>(*OfLayer(file).layer); }
void Note(sqlite3_file* file, Kind kind, std::int64_t at = 0, std::string bytes = {}) {
    LayerOf(file).Note({kind, *OfLayer(file).name, at, std::move(bytes)});
}

int Write(sqlite3_file* file, const void* from, int bytes, sqlite3_int64 at) {
    Note(file, Kind::Write, at, std::string(static_cast<const char*>(from), static_cast<std::size_t>(bytes)));
    return MethodsOf(file).xWrite(OfSystem(file), from, bytes, at);
}
int Truncate(sqlite3_file* file, sqlite3_int64 size) {
    Note(file, Kind::Truncate, size);
    return MethodsOf(file).xTruncate(OfSystem(file), size);
}
int Sync(sqlite3_file* file, int) {
    Note(file, Kind::Sync);
    return SQLITE_OK;
}

const sqlite3_io_methods Methods = [] {
    sqlite3_io_methods methods = MethodsThatHandOn();
    methods.xWrite = Write;
    methods.xTruncate = Truncate;
    methods.xSync = Sync;
    return methods;
}();

RecordingVfs& VfsOf(sqlite3_vfs* vfs) {
    return static_cast<RecordingVfs&>(*static_cast<FileLayer*>(vfs->pAppData));
}
std::string NameOf(const char* path) { return std::filesystem::path(path).filename().string(); }

int Open(sqlite3_vfs* vfs, const char* path, sqlite3_file* file, int flags, int* result) {
    file->pMethods = nullptr;
    sqlite3_vfs& system = VfsOf(vfs).System();
    // A file without a name is a scratch file of SQLite's own.
    if (path == nullptr) return SQLITE_CANTOPEN;
    const bool made = !std::filesystem::exists(path);
    OfLayer(file).layer = &VfsOf(vfs);
    OfLayer(file).name = &VfsOf(vfs).Keep(NameOf(path));
    const int opened = system.xOpen(&system, path, OfSystem(file), flags, result);
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

RecordingVfs::RecordingVfs(std::string name) : FileLayer(std::move(name)) {
    Routines().xOpen = Open;
    Routines().xDelete = Delete;
}

std::vector<RecordingVfs::Operation> RecordingVfs::Take() { return std::exchange(operations_, {}); }

}  // namespace sorvane
