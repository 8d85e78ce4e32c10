// Whether a file is what the program makes and reads.
#pragma once

#include <functional>
#include <string>

#include "records/Outside.h"
#include "store/dao/RecordFile.h"

namespace sorvane::Records {

// Damage: the file is broken or is no file of the program. Fault: a value, or a key, that the program can't
// work with. Note: worth a look.
enum class Weight { Damage, Fault, Note };

struct Finding {
    Weight weight;
    std::string text;  // with table and key
};

// Tells every finding of the open file.
void Examine(const Dao::RecordFile& file, Outside& outside, const std::function<void(const Finding&)>& tell);

}  // namespace sorvane::Records
