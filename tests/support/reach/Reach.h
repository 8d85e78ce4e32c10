// Which code a test reaches, for tools/mutate: a build with SORVANE_REACH writes it down.
#pragma once

namespace sorvane::test {

// Writes one line into a file of this process in the folder that the environment names in SORVANE_REACH,
// which begins with the path of this program and a line of all its blocks, as addresses from its start: the
// test, how long the processor worked for it, and the places in that line of all blocks run since the last
// call. Begins anew in any case.
void FlushReached(const char* test, long milliseconds);

}  // namespace sorvane::test
