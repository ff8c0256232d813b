#pragma once

// What the fuzz targets share: the engine they open inputs in, the scratch folder the inputs are
// written to, and the line between a refused file (expected) and a finding (anything else).

#include <excel/excel.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vos_fuzz {

// The one engine of this process, with alerts off as an unattended client runs it.
excel::Application& Engine();

// Writes the input as input.xlsx in this process's scratch folder and answers its path.
std::string WriteInput(const uint8_t* data, size_t size);

// A path in the scratch folder for a file the target writes; no file is left at it.
std::string ScratchPath(const std::string& name);

// Opens the file as a workbook. A damaged or foreign file is turned away with an AutomationError:
// the answer is then null and `refusal` (if given) holds its text. Any other exception escapes.
std::shared_ptr<excel::Workbook> OpenOrRefuse(const std::string& path, std::string* refusal = nullptr);

// Reads an opened workbook back through the object model as a client would: the sheets' names and
// used ranges, the cells' values where the used range is small, the names and the shapes. Answers
// the sheets' names.
std::vector<std::string> ReadBack(excel::Workbook& book);

// A part name that the package at the path holds twice (compared without case, as part names
// are), or empty when each part is there once; a package that does not open answers empty too.
std::string RepeatedPartName(const std::string& path);

// Reports a broken promise of the library and aborts, so that the fuzzer keeps the input.
[[noreturn]] void Fail(const std::string& what);

}  // namespace vos_fuzz
