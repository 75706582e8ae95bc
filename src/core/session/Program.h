#pragma once

#include <random>
#include <string>

#include "engine/Pointer.h"
#include "engine/cCustom.h"
#include "engine/cGames.h"
#include "engine/cPlay.h"
#include "lists/cFunc.h"
#include "scores/cScore.h"
#include "session/cData.h"
#include "session/cEngine.h"
#include "session/cFileSys.h"
#include "session/GameKeeper.h"
#include "session/Motion.h"
#include "session/SessionLock.h"
#include "session/cGamePlay.h"
#include "settings/ISettingsStore.h"
#include "settings/cRegistry.h"
#include "surface/IBackground.h"
#include "surface/IClock.h"
#include "surface/IDialogs.h"
#include "surface/ISprites.h"
#include "surface/ISoundOutput.h"
#include "surface/IWindow.h"
#include "surface/RecordingBackground.h"
#include "surface/RecordingSound.h"
#include "surface/cImages.h"
#include "surface/cSound.h"

namespace qv {

// What the core asks of the platform, bundled: the desktop gives Qt versions, the
// command-line tool and the tests give recording and scripted ones.
struct Surface {
  ISprites& sprites;
  IWindow& window;
  IDialogs& dialogs;
  IClock& clock;
  // The table's background; a recording one when none is given (headless runs, tests).
  IBackground* background = nullptr;
  // The sound output; a recording one when none is given.
  ISoundOutput* sound = nullptr;
};

// Owns the twelve program-wide objects, created in their fixed order, and what they share.
// A test builds a fresh one with an in-memory settings store and a temporary home.
class Program {
 public:
  Program(Surface surface, ISettingsStore& store, PlatformFolders folders);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // A message box with the program's name as its title.
  Answer MsgBox(const std::string& text, MsgStyle style);

  Surface surface;
  RecordingBackground recordedBackground;  // what surface.background is when none was given
  RecordingSound recordedSound;            // and surface.sound
  PlatformFolders folders;
  ISettingsStore& store;

  qv::cData cData;
  qv::cGames cGames;
  qv::cScore cScore;
  qv::cEngine cEngine;
  qv::cRegistry cRegistry;
  qv::cFileSys cFileSys;
  qv::cImages cImages;
  qv::cFunc cFunc;
  qv::cGamePlay cGamePlay;
  qv::cSound cSound;
  qv::cCustom cCustom;
  qv::cPlay cPlay;

  DragState drag;
  qv::Motion motion;
  qv::GameKeeper keeper;
  qv::SessionLock session;  // held by the program that keeps the unfinished game
  int ScreenWidth = 19200;  // the width the table is centred in, twips
  std::mt19937_64 rng;      // seeded from the clock, as new game numbers are
};

}  // namespace qv
