#pragma once

#include <excel/automation_error.hpp>

#include <cstdint>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace conformance {

// Collects expectations that do not hold, so that one run reports every difference.
class Failures {
public:
    void Expect(bool holds, const std::string& expectation) {
        ++checked_;
        if (!holds)
            failed_.push_back(expectation);
    }

    void ThrowIfAny() const {
        for (const auto& expectation : failed_) {
            std::cerr << "FAIL " << expectation << '\n';
        }
        if (!failed_.empty())
            throw std::runtime_error(std::to_string(failed_.size()) + " of " + std::to_string(checked_) +
                                     " expectations failed");
        std::cout << checked_ << " expectations hold\n";
    }

private:
    int checked_ = 0;
    std::vector<std::string> failed_;
};

// Runs a command-line tool's work; a failure is printed with its HRESULT and becomes exit code 1.
template <class Work>
int RunReportingFailure(Work&& work) {
    try {
        work();
        return 0;
    } catch (const excel::AutomationError& error) {
        std::cerr << "automation error 0x" << std::hex << static_cast<uint32_t>(error.code()) << ": " << error.what()
                  << '\n';
    } catch (const std::exception& error) {
        std::cerr << "error: " << error.what() << '\n';
    }
    return 1;
}

}  // namespace conformance
