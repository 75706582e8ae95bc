#pragma once

#include <string>
#include <vector>

#include "session/cData.h"

namespace qv {

class Program;

// The background's settings, mended on reading and never written back.
int TextureIndex(const Program& app);  // 1 to the library's count, else 1
int ColorIndex(const Program& app);    // 1 to the library's count, else 1
int ImageIndex(const Program& app);    // 1 to the library's count, else 1
// A stored scheme that no longer exists gives the default one, which Write makes first.
std::string SchemeFile(const Program& app, FolderUse use = FolderUse::Write);
// A file that is gone, or no longer in LIST0, gives the default picture.
std::string CustImageFile(const Program& app, FolderUse use = FolderUse::Write);
// A file that is gone gives the default picture; its folder is the one rotated through.
std::string ImageFolderFile(const Program& app, FolderUse use = FolderUse::Write);

// The schemes of the scheme folder that read, by name.
std::vector<std::string> SchemeFiles(const Program& app, FolderUse use = FolderUse::Write);
// The pictures of a folder (bmp, gif, jpg, jpeg, png in any case), by name.
std::vector<std::string> PictureFiles(const std::string& folder);

}  // namespace qv
