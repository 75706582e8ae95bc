#pragma once

#include <string>

namespace qv {

// The recent lists. The session already reports every game it starts and opens here;
// the lists are kept once their menus are built.
class cFunc {
 public:
  void AddRecent(int /*mType*/, const std::string& /*Sval*/) {}
};

}  // namespace qv
