#pragma once

#include <string>
#include <string_view>

namespace excel::com {

// Automation names compare without regard to case: the key a member's name is kept under.
inline std::string FoldedMemberName(std::string_view name) {
    std::string folded(name);
    for (char& letter : folded) {
        if (letter >= 'A' && letter <= 'Z') {
            letter = static_cast<char>(letter - 'A' + 'a');
        }
    }
    return folded;
}

}  // namespace excel::com
