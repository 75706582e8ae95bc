#pragma once

#include <string>

namespace qv {

class Program;

// Puts a pending game back under its old file name. False, with a message shown, when
// the file could not be written; the game then stays where it is.
bool SavePendingFile(Program& app, const std::string& PendFile);

}  // namespace qv
