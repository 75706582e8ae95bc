#pragma once

#include "engine/GameNo.h"

namespace qv {

class Program;

// The largest game number the number dialog takes: 10^RangeIndex - 1.
double MaxGameNo(const Program& app);
// A fresh game number from 1 to 10^RangeIndex - 1.
GameNo RandomGameNo(Program& app);

}  // namespace qv
