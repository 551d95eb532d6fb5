#include "app/help_folder.h"

#include <array>
#include <system_error>

#include "frame/session_menu.h"

namespace vrask {

std::optional<std::filesystem::path> helpFolder(const std::filesystem::path& current,
                                                const std::filesystem::path& programFolder) {
  const std::array<std::filesystem::path, 3> candidates{
      current, programFolder, (programFolder / VRASK_DATA_FROM_BIN).lexically_normal()};
  for (const auto& folder : candidates) {
    std::error_code error;
    if (std::filesystem::is_regular_file(folder / kHelpFile, error)) return folder;
  }
  return std::nullopt;
}

}  // namespace vrask
