#include "fuzz_workbook.hpp"

#include <excel/embedded.hpp>

#include <unistd.h>
#include <zip.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <system_error>

namespace vos_fuzz {

namespace {

// Cells read back per sheet at most: a hostile file may stretch the used range over the whole grid,
// and an array of all its values would exhaust memory through no fault of the reader.
constexpr int64_t kMostCellsRead = 4096;

// A folder of this process's own (the fuzzer's jobs run side by side), on tmpfs where there is one
// so that each input costs no disk write; removed when the process ends normally.
class ScratchFolder {
public:
    ScratchFolder() {
        std::error_code error;
        std::filesystem::path base = "/dev/shm";
        if (!std::filesystem::is_directory(base, error) || ::access(base.c_str(), W_OK) != 0) {
            base = std::filesystem::temp_directory_path();
        }
        std::string pattern = (base / "vos-fuzz-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            std::perror(("mkdtemp " + pattern).c_str());
            std::abort();
        }
        path_ = pattern;
    }
    ~ScratchFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

ScratchFolder& Scratch() {
    static ScratchFolder folder;
    return folder;
}

}  // namespace

excel::Application& Engine() {
    static const std::shared_ptr<excel::Application> app = [] {
        auto created = excel::embedded::CreateApplication();
        created->SetDisplayAlerts(false);
        return created;
    }();
    return *app;
}

std::string WriteInput(const uint8_t* data, size_t size) {
    const std::string path = (Scratch().Path() / "input.xlsx").string();
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    file.close();
    if (!file) {
        Fail("cannot write the input to " + path);
    }
    return path;
}

std::string ScratchPath(const std::string& name) {
    const std::filesystem::path path = Scratch().Path() / name;
    std::error_code error;
    std::filesystem::remove(path, error);
    return path.string();
}

std::shared_ptr<excel::Workbook> OpenOrRefuse(const std::string& path, std::string* refusal) {
    try {
        return Engine().Workbooks()->Open(path);
    } catch (const excel::AutomationError& error) {
        if (refusal != nullptr) {
            *refusal = error.what();
        }
        return nullptr;
    }
}

std::vector<std::string> ReadBack(excel::Workbook& book) {
    std::vector<std::string> sheetNames;
    const int32_t sheets = book.Worksheets()->Count();
    for (int32_t index = 1; index <= sheets; ++index) {
        auto sheet = book.Worksheets(index);
        sheetNames.push_back(sheet->Name());
        auto used = sheet->UsedRange();
        if (used->CountLarge() <= kMostCellsRead) {
            used->Value();
        }
        auto shapes = sheet->Shapes();
        const int32_t shapeCount = shapes->Count();
        for (int32_t shape = 1; shape <= shapeCount; ++shape) {
            auto item = shapes->Item(shape);
            item->Name();
            item->Type();
        }
    }
    auto names = book.Names();
    const int32_t nameCount = names->Count();
    for (int32_t index = 1; index <= nameCount; ++index) {
        auto name = names->Item(index);
        name->GetName();
        name->RefersTo();
    }
    return sheetNames;
}

std::string RepeatedPartName(const std::string& path) {
    int error = 0;
    zip_t* archive = zip_open(path.c_str(), ZIP_RDONLY, &error);
    if (archive == nullptr) {
        return {};
    }
    std::set<std::string> seen;
    std::string repeated;
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    for (zip_int64_t index = 0; index < count && repeated.empty(); ++index) {
        const char* name = zip_get_name(archive, static_cast<zip_uint64_t>(index), ZIP_FL_ENC_RAW);
        std::string folded = name != nullptr ? name : "";
        std::transform(folded.begin(), folded.end(), folded.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        if (!seen.insert(folded).second) {
            repeated = name;
        }
    }
    zip_discard(archive);
    return repeated;
}

void Fail(const std::string& what) {
    std::fprintf(stderr, "==%d== FINDING: %s\n", static_cast<int>(::getpid()), what.c_str());
    std::fflush(stderr);
    std::abort();
}

}  // namespace vos_fuzz
