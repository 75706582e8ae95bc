#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace qv {

class Program;
class CliDialogs;

// Exit statuses of the command-line tool.
enum ExitStatus { kOk = 0, kFileError = 1, kUsageError = 2 };

// A failed command: what to print and how the tool ends.
struct CommandError {
  ExitStatus status = kOk;
  std::string message;
};

// Splits a script line into words; double quotes keep blanks inside one word.
std::vector<std::string> SplitWords(const std::string& line);

// Plays a session script, one command a line, as a user would at the window.
class ScriptRunner {
 public:
  ScriptRunner(Program& app, CliDialogs& dialogs, std::ostream& out) : app_(app), dialogs_(dialogs), out_(out) {}
  // Runs to the end, to `exit`, or to the first failing line; the tool's exit status.
  int Run(std::istream& script);
  // One command; the error when it failed. `finished` turns true at `exit`.
  CommandError Execute(const std::vector<std::string>& words, bool& finished);

 private:
  CommandError Drag(const std::vector<std::string>& w, bool toPile);
  CommandError DoubleClick(const std::vector<std::string>& w);
  CommandError Deal(const std::vector<std::string>& w);
  CommandError WithNumber(const std::vector<std::string>& w);
  CommandError WithPath(const std::vector<std::string>& w);
  CommandError Player(const std::vector<std::string>& w);
  CommandError Favorite(const std::vector<std::string>& w);
  CommandError FromDialogs(ExitStatus status, const std::string& fallback);

  Program& app_;
  CliDialogs& dialogs_;
  std::ostream& out_;
};

// A finished game runs forward to its last record, as the forward replay timer would.
void ReplayToEnd(Program& app);

}  // namespace qv
