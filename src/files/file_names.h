// The parts of a path. A project may come from any system, so both separators count.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace pitchcraft {

/// The part after the last separator of a path.
std::string FileNameOf(const std::string& path);

/// Adds the extension to a name that has none, as desktop dialogs do. An empty path stays empty.
std::string WithExtension(const std::string& path, std::string_view extension);

/// ".pdf" of "Roof.PDF"; empty if there is none. Only ASCII letters become lower case.
std::string ExtensionOf(const std::filesystem::path& path);

}  // namespace pitchcraft
