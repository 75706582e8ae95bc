#pragma once

class QTabWidget;

namespace qv {

class Program;

// The Solver tab of Options: the indicator on or off, and how long and how much memory a
// search may take. Each control stores its setting the moment it changes.
void AddSolverPage(QTabWidget* tabs, Program& app);

}  // namespace qv
