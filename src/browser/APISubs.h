#pragma once

#include "base/Registry.h"
#include "base/Seams.h"

#include <cstdint>
#include <string>

namespace ls {

/// The results of `LaunchProgram`.
namespace launch {
constexpr std::int16_t Started = 0;
constexpr std::int16_t NoProgram = -1; ///< the registry names none; no message was shown
/// A malformed or undefined environment variable; a message was shown.
constexpr std::int16_t BadVariable = -2;
constexpr std::int16_t StartFailed = -3; ///< a message was shown
} // namespace launch

/// Reads a value of the user's key at `keyPath`. If the user has no such key, or the key lacks the value,
/// reads the machine's key. If neither key exists, a box says so and the result is empty.
[[nodiscard]] std::string RegGetString(const Seams& seams, Registry& registry, const std::string& keyPath,
                                       const std::string& valueName);

/// Reads a text value of an open key. If the value is missing, is no text or cannot be read, a message is
/// shown and the program ends; the result is then empty.
[[nodiscard]] std::string RegQueryString(const Seams& seams, RegistryKey& key, const std::string& valueName);

/// Starts a program with a document as its only argument and does not wait for it.
///
/// `progSpec` is a program's path, or a file type (".HTM") whose program the registry names. `document` is a
/// file, an address or empty. Both are in the system's bytes. Both are changed to their form in the command
/// line, so pass copies. The results are those of `launch`.
std::int16_t LaunchProgram(const Seams& seams, Registry& registry, std::string& progSpec,
                           std::string& document);

} // namespace ls
