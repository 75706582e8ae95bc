// The small comma-separated records, names that become file names, and appending to files.
#include <gtest/gtest.h>

#include <filesystem>

#include "TestProgram.h"
#include "lists/ValidName.h"
#include "session/TextRecord.h"

namespace qv {
namespace {

// Each field as its kind's letter (bare, quoted, date) and its text.
std::vector<std::string> Fields(std::string_view line) {
  std::vector<std::string> out;
  const auto fields = SplitRecord(line);
  if (!fields) return {"unreadable"};
  for (const auto& f : *fields) out.push_back(std::string(1, "bqd"[f.kind]) + f.text);
  return out;
}

TEST(TextRecord, TheProgramsRecordsReadFieldByField) {
  using V = std::vector<std::string>;
  EXPECT_EQ(Fields("\"11/17/2026 6:41:26 AM\",\"Spider\",123456,754,212,683,1"),
            (V{"q11/17/2026 6:41:26 AM", "qSpider", "b123456", "b754", "b212", "b683", "b1"}));
  EXPECT_EQ(Fields("\"Spider\",123456,\"Player1\",#11/17/2026 6:41:26 AM#"),
            (V{"qSpider", "b123456", "qPlayer1", "d11/17/2026 6:41:26 AM"}));
  EXPECT_EQ(Fields("10,4,13,0,1,2,0"), (V{"b10", "b4", "b13", "b0", "b1", "b2", "b0"}));
  // A comma inside quotes is the text's; an empty field is a field.
  EXPECT_EQ(Fields("\"Spider, Mine\",\"\",,7"), (V{"qSpider, Mine", "q", "b", "b7"}));
  for (const char* broken : {"\"cut short,1", "\"a\"b,1", "#11/17/2026,1"})
    EXPECT_EQ(Fields(broken), V{"unreadable"}) << broken;
}

TEST(TextRecord, GameNumbersKeepTheirFormAndNumbersTheirRange) {
  const auto line = QuotedField("Spider") + "," + RecordGameNo(GameNo::Typed("000123")) + "," +
                    RecordGameNo(GameNo::Number(uint64_t{123456789012345})) + ",2147483647,2147483648,-5";
  EXPECT_EQ(line, "\"Spider\",\"000123\",123456789012345,2147483647,2147483648,-5");
  const auto fields = *SplitRecord(line);
  EXPECT_EQ(std::tuple(ReadRecordGameNo(fields[1]), ReadRecordGameNo(fields[2]), ReadRecordGameNo(fields[0])),
            std::tuple(GameNo::Typed("000123"), GameNo::Number("123456789012345"), std::nullopt));
  // Beyond 32 bits, or a text, is no number.
  EXPECT_EQ(std::tuple(ReadIntField(fields[3]), ReadIntField(fields[4]), ReadIntField(fields[5]), ReadIntField(fields[1])),
            std::tuple(2147483647, std::nullopt, -5, std::nullopt));
  EXPECT_EQ(SplitLines("a\r\nb\nc"), (std::vector<std::string_view>{"a", "b", "c"}));
}

TEST(TextRecord, NamesRefuseTheNineCharactersOnly) {
  for (const char* bad : {"a\\b", "a/b", "a:b", "a*b", "a?b", "a\"b", "a<b", "a>b", "a|b"}) EXPECT_FALSE(IsValidName(bad)) << bad;
  EXPECT_TRUE(IsValidName(" My Game - 2 (old). "));
  EXPECT_TRUE(IsValidName(""));  // emptiness is the caller's question
}

TEST(TextRecord, AppendingEndsACutLineFirstAndRenameRefusesATakenName) {
  test::TestProgram t;
  const std::string file = t.home.File("lines.txt");
  test::WriteFile(file, "one\r\ntwo, cut sh");
  ASSERT_TRUE(t->cFileSys.AppendText(file, "three\r\n"));
  ASSERT_TRUE(t->cFileSys.AppendText(file, "four\r\n"));
  EXPECT_EQ(test::ReadFile(file), "one\r\ntwo, cut sh\r\nthree\r\nfour\r\n");
  ASSERT_TRUE(t->cFileSys.AppendText(t.home.File("new.txt"), "first\r\n"));
  EXPECT_EQ(test::ReadFile(t.home.File("new.txt")), "first\r\n");
  std::string error;
  EXPECT_FALSE(t->cFileSys.Rename(file, t.home.File("new.txt"), &error));
  EXPECT_EQ(std::tuple(error.empty(), test::ReadFile(t.home.File("new.txt"))), std::tuple(false, "first\r\n"));
  EXPECT_TRUE(t->cFileSys.Rename(file, t.home.File("moved.txt")) && !std::filesystem::exists(file));
  std::filesystem::create_directories(t.home.File("folder/inner"));
  EXPECT_TRUE(t->cFileSys.DeleteFolder(t.home.File("folder")) && !std::filesystem::exists(t.home.File("folder")));
}

}  // namespace
}  // namespace qv
