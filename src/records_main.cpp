#include <string>
#include <vector>

#include "records/CommandLine.h"
#include "records/Outside.h"

int main(int count, char** words) {
    using namespace sorvane::Records;
    Outside outside = Outside::OfTheSystem(count > 0 ? words[0] : "sorvane-records");
    return RunCommand(outside, {words + (count > 0 ? 1 : 0), words + count});
}
