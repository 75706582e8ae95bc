#pragma once

#include <string>

#include "session/cData.h"
#include "surface/IBackground.h"

namespace qv {

class Program;

// Paints the background the settings describe, after clearing the window, and sets the
// wallpaper timer.
void ApplyBackground(Program& app);
// Paints a random value of the current kind over what the window holds. It only looks:
// it changes no setting and makes no default file or folder.
void PickWallpaper(Program& app);
// The same with the random number given, r in [0, 1).
void PickWallpaperAt(Program& app, double r);
// Starts the wallpaper timer for WPTimerValue 1 to 3 (5, 15, 60 s) and stops it otherwise.
void SetWallTimer(Program& app);
int WallTimerInterval(int wpTimerValue);

void ShowTexture(Program& app, int index);
void ShowColor(Program& app, int index);
bool ShowPicture(Program& app, const BackPicture& picture);
void ShowScheme(Program& app, const std::string& path);

}  // namespace qv
