#pragma once

#include <cstdint>
#include <string>

namespace qv {

// A game number keeps the form it came in: a number (drawn at random, or read from a
// file's number field) or the digit text as the user typed it, possibly with a fraction.
// Every digit is kept, so numbers of 15 digits and more pass through unchanged.
class GameNo {
 public:
  GameNo() = default;
  static GameNo Number(std::string decimal) { return GameNo(std::move(decimal), false); }
  static GameNo Number(uint64_t n) { return GameNo(std::to_string(n), false); }
  static GameNo Typed(std::string digits) { return GameNo(std::move(digits), true); }

  bool IsTyped() const { return typed_; }
  bool Empty() const { return text_.empty(); }
  const std::string& Text() const { return text_; }
  // The value the deal is made from; a text that does not read as a number gives 0.
  double Value() const;

  bool operator==(const GameNo&) const = default;

  // Digits with at most one '.', and at least one digit: what a typed number may be.
  static bool IsDigitText(const std::string& s);
  // An optional '-' and a digit text: what a number field of a saved game may hold.
  static bool IsNumberText(const std::string& s);

 private:
  GameNo(std::string text, bool typed) : text_(std::move(text)), typed_(typed) {}
  std::string text_;
  bool typed_ = false;
};

}  // namespace qv
