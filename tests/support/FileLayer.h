// A file layer for SQLite over the system's own, which does all the work; a test's disk changes a few
// routines.
#pragma once

#include <sqlite3.h>

#include <string>

namespace sorvane {

// While it lives, an engine that is given its name reads and writes through it. One thread at a time.
class FileLayer {
  public:
    FileLayer(const FileLayer&) = delete;
    FileLayer& operator=(const FileLayer&) = delete;
    const std::string& Name() const { return name_; }
    sqlite3_vfs& System() const { return *system_; }

  protected:
    explicit FileLayer(std::string name);
    ~FileLayer();
    // What the engine asks of it; the routines of the system as long as nobody changes them.
    sqlite3_vfs& Routines() { return vfs_; }

  private:
    std::string name_;
    sqlite3_vfs* system_;
    sqlite3_vfs vfs_;
};

// A file of a layer. SQLite lays it out in memory of its own; the system's file stands right behind it.
struct LayerFile {
    sqlite3_file base;
    FileLayer* layer;
    const std::string* name;
};
inline LayerFile& OfLayer(sqlite3_file* file) { return *reinterpret_cast<LayerFile*>(file); }
inline sqlite3_file* OfSystem(sqlite3_file* file) {
    return reinterpret_cast<sqlite3_file*>(&OfLayer(file) + 1);
}
inline const sqlite3_io_methods& MethodsOf(sqlite3_file* file) { return *OfSystem(file)->pMethods; }

// Methods that hand everything on to the system's file, without shared memory and mapped files, which nothing
// here needs.
sqlite3_io_methods MethodsThatHandOn();

}  // namespace sorvane
