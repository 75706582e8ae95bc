#pragma once

namespace qv {

class MainWindow;

// Back to Last Winnable Position: searches the positions after each step of the journal
// on a worker thread, by halving, and undoes to the last one proved winnable; what was
// undone stays to be redone. After a second a progress box with Cancel shows.
void BackToWinnable(MainWindow& main);

}  // namespace qv
