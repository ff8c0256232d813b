#pragma once

#include <excel/automation_error.hpp>

#include <cstdint>
#include <exception>
#include <filesystem>
#include <iostream>

// Runs an example on the workbook path it was given (or its default), creating the folder first.
// A failure is printed, with the HRESULT of an automation error, and becomes exit status 1.
template <class Example>
int RunExample(int argc, char** argv, const char* defaultTarget, Example&& example) {
    const std::filesystem::path target = std::filesystem::absolute(argc > 1 ? argv[1] : defaultTarget);
    try {
        std::filesystem::create_directories(target.parent_path());
        example(target);
        return 0;
    } catch (const excel::AutomationError& error) {
        std::cerr << "automation error 0x" << std::hex << static_cast<uint32_t>(error.code()) << ": " << error.what()
                  << '\n';
    } catch (const std::exception& error) {
        std::cerr << "error: " << error.what() << '\n';
    }
    return 1;
}
