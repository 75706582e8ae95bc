#include "lists/Pending.h"

#include "session/Program.h"

namespace qv {

bool SavePendingFile(Program& app, const std::string& PendFile) {
  std::string error;
  if (app.cEngine.SavetoFile(PendFile, &error)) return true;
  app.MsgBox("The pending game could not be written back to \"" + PendFile + "\": " + error + ".", MsgStyle::Stop);
  return false;
}

}  // namespace qv
