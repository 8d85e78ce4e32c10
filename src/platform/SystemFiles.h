// Files and terminals, where the language's own library says too little: the only place that speaks to
// the operating system itself.
#pragma once

#include <filesystem>

namespace sorvane {

// Returns once what was written to the file, or the folder's list of names, is on the disk. Raises 3043 when
// it can't be. A system that syncs no folders is taken at its word.
void SyncToDisk(const std::filesystem::path& fileOrFolder);

// Whether standard error is a terminal that a person looks at.
bool WordsGoToATerminal();

// The folder of the running program, from what the system says of it, else from the name it was called by.
std::filesystem::path ProgramFolder(const std::filesystem::path& calledAs);

}  // namespace sorvane
