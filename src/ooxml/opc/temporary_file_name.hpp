#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ooxml {

// The names of a save's temporary files, written in its target's folder. They are short whatever
// the target's length, so a target named up to the system's limit can still be saved, and every
// save of one target names its temporaries alike, so a save finds those a killed save left.

// What the names of the temporaries of the target of that file name start with: ".~" and a hash
// of the name.
std::string TemporaryNamePrefix(std::string_view targetName);
// One temporary's name: the prefix, a random number in hexadecimal, ".tmp".
std::string TemporaryName(std::string_view prefix, uint64_t random);
// Whether a name found in the folder is one TemporaryName gives with that prefix.
bool IsTemporaryName(std::string_view name, std::string_view prefix);

}  // namespace ooxml
