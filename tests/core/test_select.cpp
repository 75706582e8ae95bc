#include <gtest/gtest.h>

#include "TestProgram.h"
#include "lists/ChooseNumber.h"
#include "settings/SettingKeys.h"

namespace qv {
namespace {

TEST(NumberDialog, TheRangeIsTestedInAFloatAndTheTextGoesOnAsTyped) {
  test::TestProgram t;
  auto ok = [&](const std::string& s) { return AcceptedGameNo(*t.app, s).has_value(); };
  EXPECT_EQ(NumberRangeText(*t.app), "0 and 999,999");
  EXPECT_FALSE(ok("999999"));
  EXPECT_TRUE(ok("999998"));
  EXPECT_FALSE(ok("0"));
  EXPECT_FALSE(ok(""));
  EXPECT_FALSE(ok("1e3"));
  EXPECT_FALSE(ok("-5"));
  EXPECT_EQ(*AcceptedGameNo(*t.app, " 0012.5 "), GameNo::Typed("0012.5"));
  t->cRegistry.Set(setting::RangeIndex, 9);
  EXPECT_EQ(NumberRangeText(*t.app), "0 and 999,999,999");
  EXPECT_FALSE(ok("999999998"));  // a float makes it 1,000,000,000
  EXPECT_TRUE(ok("999999900"));
  t->cRegistry.Set(setting::RangeIndex, 1);
  EXPECT_EQ(NumberRangeText(*t.app), "0 and 9");
  EXPECT_TRUE(ok("8"));
  EXPECT_FALSE(ok("9"));
}

}  // namespace
}  // namespace qv
