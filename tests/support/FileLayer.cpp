#include "support/FileLayer.h"

#include <utility>

namespace sorvane {

FileLayer::FileLayer(std::string name)
    : name_(std::move(name)), system_(sqlite3_vfs_find(nullptr)), vfs_(*system_) {
    vfs_.szOsFile += static_cast<int>(sizeof(LayerFile));
    vfs_.pNext = nullptr;
    vfs_.zName = name_.c_str();
    vfs_.pAppData = this;
    sqlite3_vfs_register(&vfs_, 0);
}

FileLayer::~FileLayer() { sqlite3_vfs_unregister(&vfs_); }

sqlite3_io_methods MethodsThatHandOn() {
    sqlite3_io_methods methods{};
    methods.iVersion = 1;
    methods.xClose = [](sqlite3_file* file) { return MethodsOf(file).xClose(OfSystem(file)); };
    methods.xRead = [](sqlite3_file* file, void* to, int bytes, sqlite3_int64 at) {
        return MethodsOf(file).xRead(OfSystem(file), to, bytes, at);
    };
    methods.xWrite = [](sqlite3_file* file, const void* from, int bytes, sqlite3_int64 at) {
        return MethodsOf(file).xWrite(OfSystem(file), from, bytes, at);
    };
    methods.xTruncate = [](sqlite3_file* file, sqlite3_int64 size) {
        return MethodsOf(file).xTruncate(OfSystem(file), size);
    };
    methods.xSync = [](sqlite3_file* file, int flags) {
        return MethodsOf(file).xSync(OfSystem(file), flags);
    };
    methods.xFileSize = [](sqlite3_file* file, sqlite3_int64* size) {
        return MethodsOf(file).xFileSize(OfSystem(file), size);
    };
    methods.xLock = [](sqlite3_file* file, int lock) { return MethodsOf(file).xLock(OfSystem(file), lock); };
    methods.xUnlock = [](sqlite3_file* file, int lock) {
        return MethodsOf(file).xUnlock(OfSystem(file), lock);
    };
    methods.xCheckReservedLock = [](sqlite3_file* file, int* result) {
        return MethodsOf(file).xCheckReservedLock(OfSystem(file), result);
    };
    methods.xFileControl = [](sqlite3_file* file, int code, void* argument) {
        return MethodsOf(file).xFileControl(OfSystem(file), code, argument);
    };
    methods.xSectorSize = [](sqlite3_file* file) { return MethodsOf(file).xSectorSize(OfSystem(file)); };
    methods.xDeviceCharacteristics = [](sqlite3_file* file) {
        return MethodsOf(file).xDeviceCharacteristics(OfSystem(file));
    };
    return methods;
}

}  // namespace sorvane
