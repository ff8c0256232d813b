#pragma once

// The PackageError an operation of the package layer throws, as a value tests compare whole.

#include "ooxml/package_error.hpp"

#include <functional>
#include <optional>
#include <ostream>
#include <string>

namespace ooxml_test {

struct Refusal {
    ooxml::PackageError::Reason reason;
    std::string message;

    bool operator==(const Refusal&) const = default;
};

inline void PrintTo(const Refusal& refusal, std::ostream* out) {
    *out << "reason " << static_cast<int>(refusal.reason) << ": \"" << refusal.message << "\"";
}

// What the operation threw; nothing when it succeeded.
inline std::optional<Refusal> RefusalOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const ooxml::PackageError& error) {
        return Refusal{error.reason(), error.what()};
    }
    return std::nullopt;
}

}  // namespace ooxml_test
