#pragma once

#include <excel/automation_error.hpp>

#include <cstdint>
#include <exception>
#include <iostream>

namespace conformance {

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
