#pragma once

#include <string>
#include <vector>

namespace qv {

class cRegistry;

// Short lists kept in the settings: MRU lists, where a new entry comes in at the top, and
// LISTs, plain sets of slots. Ten slots each, keys "1" to "10" of section MRU<n> / LIST<n>.
class cFunc {
 public:
  explicit cFunc(cRegistry& reg) : reg_(reg) {}

  // A listed item keeps its place; a new one goes to the top and the tenth falls out.
  void AddtoMRU(int mType, const std::string& item);
  // Entry 0 the count of non-empty slots, entries 1 to 10 the slots as they stand.
  std::vector<std::string> GetMRU(int mType) const;
  int GetMRUCount(int mType) const;
  void ClearMRU(int mType);
  // False when the item is there already (exactly) or no slot is free.
  bool AddtoLIST(int mType, const std::string& item);
  // Entry 0 the count, then the non-empty slots in order, closed up.
  std::vector<std::string> GetLIST(int mType) const;
  // Both compare ignoring case.
  void RemoveListItem(int mType, const std::string& item);
  bool IsExists(int mType, const std::string& item) const;
  static constexpr int GetMRU_Max() { return 10; }
  static constexpr int GetLIST_Max() { return 10; }

 private:
  std::vector<std::string> Slots(const std::string& section) const;
  void WriteSlots(const std::string& section, const std::vector<std::string>& slots);

  cRegistry& reg_;
};

}  // namespace qv
