#include "platform/SystemFiles.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/RunTimeError.h"
#include "support/TempFolder.h"
#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace sorvane {
namespace {

#ifndef _WIN32
// The number that the next file opened gets: the lowest that is free.
int NextFile() {
    const int file = open("/dev/null", O_RDONLY | O_CLOEXEC);
    close(file);
    return file;
}

TEST(SyncToDiskTest, LeavesNoFileOpen) {
    const TempFolder folder;
    const std::string path = folder.File("there");
    std::ofstream(path) << "text";
    const int before = NextFile();
    SyncToDisk(path);
    SyncToDisk(folder.Path());
    EXPECT_EQ(NextFile(), before);
}

TEST(SyncToDiskTest, OfNoFileIsADiskError) {
    const TempFolder folder;
    EXPECT_EQ(ErrorOf([&] { SyncToDisk(folder.Path() / "missing"); }), ErrorNumber::DiskError);
}
#endif

}  // namespace
}  // namespace sorvane
