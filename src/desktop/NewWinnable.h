#pragma once

namespace qv {

class MainWindow;

// New Winnable Game: draws game numbers of the game on the table (or the last played),
// solves their deals on a worker thread, and deals the first one proved winnable. After
// a second a progress box with Cancel shows; after 200 numbers without a proof, a message.
void NewWinnableGame(MainWindow& main);

}  // namespace qv
