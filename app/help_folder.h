// Where the window program's help page is. The forms look for it in the
// current directory, as a program started from its own folder has it; a
// player who starts `vrask` from a desktop menu or from another folder has it
// beside the program (a build) or in the installed data folder.
#pragma once

#include <filesystem>
#include <optional>

namespace vrask {

// The first of the current directory, the program's folder and the data
// folder of an installed program (found from the program's folder) that holds
// the help page, or nothing when none does.
std::optional<std::filesystem::path> helpFolder(const std::filesystem::path& current,
                                                const std::filesystem::path& programFolder);

}  // namespace vrask
