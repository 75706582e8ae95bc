#include "lists/cFunc.h"

#include <algorithm>
#include <cctype>

#include "settings/cRegistry.h"

namespace qv {

namespace {

std::string MruSection(int mType) { return "MRU" + std::to_string(mType); }
std::string ListSection(int mType) { return "LIST" + std::to_string(mType); }

bool SameIgnoringCase(const std::string& a, const std::string& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](unsigned char x, unsigned char y) {
           return std::tolower(x) == std::tolower(y);
         });
}

std::string Count(const std::vector<std::string>& slots) {
  return std::to_string(std::count_if(slots.begin(), slots.end(), [](const auto& s) { return !s.empty(); }));
}

}  // namespace

std::vector<std::string> cFunc::Slots(const std::string& section) const {
  std::vector<std::string> slots;
  for (int i = 1; i <= GetMRU_Max(); ++i) slots.push_back(reg_.RegGetStr(section, std::to_string(i), ""));
  return slots;
}

void cFunc::WriteSlots(const std::string& section, const std::vector<std::string>& slots) {
  for (int i = 1; i <= GetMRU_Max(); ++i) reg_.RegSaveStr(section, std::to_string(i), slots[i - 1]);
}

void cFunc::AddtoMRU(int mType, const std::string& item) {
  auto slots = Slots(MruSection(mType));
  if (std::find(slots.begin(), slots.end(), item) != slots.end()) return;
  slots.pop_back();
  slots.insert(slots.begin(), item);
  WriteSlots(MruSection(mType), slots);
}

std::vector<std::string> cFunc::GetMRU(int mType) const {
  auto slots = Slots(MruSection(mType));
  slots.insert(slots.begin(), Count(slots));
  return slots;
}

int cFunc::GetMRUCount(int mType) const { return std::stoi(GetMRU(mType)[0]); }

void cFunc::ClearMRU(int mType) { WriteSlots(MruSection(mType), std::vector<std::string>(GetMRU_Max())); }

bool cFunc::AddtoLIST(int mType, const std::string& item) {
  auto slots = Slots(ListSection(mType));
  if (std::find(slots.begin(), slots.end(), item) != slots.end()) return false;
  auto free = std::find(slots.begin(), slots.end(), std::string());
  if (free == slots.end()) return false;
  *free = item;
  reg_.RegSaveStr(ListSection(mType), std::to_string(free - slots.begin() + 1), item);
  return true;
}

std::vector<std::string> cFunc::GetLIST(int mType) const {
  auto slots = Slots(ListSection(mType));
  std::vector<std::string> list{Count(slots)};
  std::copy_if(slots.begin(), slots.end(), std::back_inserter(list), [](const auto& s) { return !s.empty(); });
  return list;
}

void cFunc::RemoveListItem(int mType, const std::string& item) {
  const auto slots = Slots(ListSection(mType));
  for (size_t i = 0; i < slots.size(); ++i)
    if (!slots[i].empty() && SameIgnoringCase(slots[i], item)) {
      reg_.RegSaveStr(ListSection(mType), std::to_string(i + 1), "");
      return;
    }
}

bool cFunc::IsExists(int mType, const std::string& item) const {
  const auto slots = Slots(ListSection(mType));
  return std::any_of(slots.begin(), slots.end(), [&](const auto& s) { return !s.empty() && SameIgnoringCase(s, item); });
}

}  // namespace qv
