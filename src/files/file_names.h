// The parts of a path. Projects come from any system, so both separators count.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace pitchcraft {

/// What follows the last separator of a path.
std::string FileNameOf(const std::string& path);

/// A name without an extension gets that one, as the dialogs of a desktop do it. An empty path stays.
std::string WithExtension(const std::string& path, std::string_view extension);

/// ".pdf" of "Roof.PDF"; empty where there is none. Only ASCII letters are made small.
std::string ExtensionOf(const std::filesystem::path& path);

}  // namespace pitchcraft
