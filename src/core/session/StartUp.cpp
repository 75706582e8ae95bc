#include "session/StartUp.h"

#include "scores/Players.h"
#include "session/Program.h"

namespace qv {

void StartUp(Program& app) {
  app.cData.SesStartTime(GeneralDate(app.surface.clock.Now()));
  if (PlayerCount(app.cRegistry) == 0) SetPlayer(app.cRegistry, 1, "Player1", true);
}

}  // namespace qv
