#pragma once

#include <string>

namespace qv {

class Program;

// The two kinds of saved game as file types of the desktop, registered for the user the
// freedesktop way: a shared-mime-info type for each extension, a desktop entry that opens
// them with the program, and the program as their default application.

// The type's class ("Quorvale.Incomplete", "Quorvale.Finished") when the registration for
// this extension is in place (mime package, desktop entry, a default application and the
// mime database), else the empty text.
std::string GetFileClass(const Program& app, const std::string& ext);
// Writes both types and the desktop entry; silent when anything fails, so the next start
// simply tries again. The user's other default applications are kept as they were.
void RegisterFileTypes(const Program& app);

}  // namespace qv
