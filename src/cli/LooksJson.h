#pragma once

#include <string>
#include <vector>

namespace qv {

class Program;

// The background the settings describe, after their repairs, as one JSON object.
std::string BackgroundJson(const Program& app);
// The colour schemes that read, by name, with their colours.
std::string SchemesJson(const Program& app);
// The thirty sound events: key, group, label, the file each plays, and whether it exists.
std::string SoundsJson(const Program& app);
// A list of texts as a JSON array.
std::string JsonTexts(const std::vector<std::string>& items);

}  // namespace qv
