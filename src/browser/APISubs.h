#pragma once

#include "base/Registry.h"
#include "base/Seams.h"

#include <cstdint>
#include <string>

namespace ls {

/// What `LaunchProgram` comes to.
namespace launch {
constexpr std::int16_t Started = 0;
constexpr std::int16_t NoProgram = -1;   ///< the registry names none; the caller decides what to say
constexpr std::int16_t BadVariable = -2; ///< a malformed or undefined environment variable; told
constexpr std::int16_t StartFailed = -3; ///< told
} // namespace launch

/// Reads a value of the user's key at `keyPath`; of the machine's where the user has no such key, or has it
/// without the value. Where neither key is there, a box says so and the result is empty.
[[nodiscard]] std::string RegGetString(const Seams& seams, Registry& registry, const std::string& keyPath,
                                       const std::string& valueName);

/// Reads a text value of an open key. A missing value, one that is no text and one that cannot be read are
/// told and end the program; the result is then empty.
[[nodiscard]] std::string RegQueryString(const Seams& seams, RegistryKey& key, const std::string& valueName);

/// Starts a program with a document as its only argument and does not wait for it.
///
/// `progSpec` is a program's path, or a file type (".HTM") whose program the registry names; `document` is a
/// file, an address or empty. Both are paths, the system's own bytes, and both are rewritten to what stood in
/// the command line: pass copies. The results are those of `launch`.
std::int16_t LaunchProgram(const Seams& seams, Registry& registry, std::string& progSpec,
                           std::string& document);

} // namespace ls
