#pragma once

#include <functional>

namespace qv {

class Program;

// What runs once before the first game: a game kept by a run that crashed is taken up,
// the run is marked as going, its start time noted and a first player made. The window
// adds its own steps (background, menus, toolbar, file types) around it.
void StartUp(Program& app);

// The orderly stop: the game on the table is kept or ended, then the run's mark cleared.
void ShutDown(Program& app);

// A stop asked for by the user, the window or the session: true when the program has
// stopped now. While cards move it waits for the change in hand to end, then runs
// `stopLater`, which asks again.
bool StopProgram(Program& app, std::function<void()> stopLater);

}  // namespace qv
