#pragma once

namespace qv {

class Program;

// What runs once before the first game: the run's start time and a first player.
// The window adds its own steps (background, menus, toolbar, file types) around it.
void StartUp(Program& app);

}  // namespace qv
