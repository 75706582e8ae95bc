#pragma once

#include <string>

namespace qv {

class Program;

// Accessors of settings whose stored value may no longer fit: they mend it on reading
// and do not write the mended value back.
int DeckIndex(const Program& app);                   // a deck the library has, else 7
std::string SaveInitDir(const Program& app);         // an existing folder, else the saved-games folder
std::string CustImageInitDir(const Program& app);    // an existing folder, else the documents folder

}  // namespace qv
