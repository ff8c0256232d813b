#pragma once

#include "embedded/engine_fixture.hpp"
#include "ooxml/reader_test_package.hpp"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

// A workbook of ../shared/excel-corpus, by its path there ("realworld-excel/x.xlsx").
inline std::string CorpusPath(const std::string& name) {
    return std::string(VOS_SHARED_DIR) + "/excel-corpus/" + name;
}

// A fresh folder per test, removed afterwards.
class SaveOpenTest : public EngineTest {
protected:
    void SetUp() override {
        EngineTest::SetUp();
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        folder = std::filesystem::temp_directory_path() / ("engine_save_open_" + std::to_string(::getpid()) + "_" +
                                                           info->test_suite_name() + "_" + info->name());
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::string PathOf(const std::string& name) const { return (folder / name).string(); }

    // A workbook of ../shared/excel-corpus opened in place of the test's new one.
    std::shared_ptr<excel::Workbook> OpenCorpus(const std::string& name) {
        book->Close(false);
        return app->Workbooks()->Open(CorpusPath(name));
    }

    // The workbook saved as target in the test's folder, as its parts.
    ooxml_test::PackageParts Saved(const std::shared_ptr<excel::Workbook>& workbook, const std::string& target) {
        workbook->SaveAs(PathOf(target));
        return ooxml_test::ReadPackageParts(PathOf(target));
    }

    std::shared_ptr<excel::Workbook> SaveAndReopen(const std::string& name) {
        book->SaveAs(PathOf(name));
        book->Close();
        return app->Workbooks()->Open(PathOf(name));
    }

    std::filesystem::path folder;
};

// Runs one of the shared file checkers (validate-xlsx, check-xlsx) on the file; 0 when it passes.
inline int RunTool(const std::string& tool, const std::string& file) {
    const std::string command = std::string(VOS_SHARED_DIR) + "/tools/" + tool + " '" + file + "' > /dev/null 2>&1";
    return std::system(command.c_str());
}
