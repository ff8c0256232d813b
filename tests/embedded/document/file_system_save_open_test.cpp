// Workbooks.Open and SaveAs against what the file system does: pipes, permissions, a full disk,
// long names, saves killed or still running, symbolic links, read-only files and paths holding a
// NUL. Each refusal keeps Excel's sentence and adds the reason in parentheses.

#include "ooxml/child_process.hpp"
#include "ooxml/opc/package_reader.hpp"
#include "ooxml/other_process_saves.hpp"
#include "ooxml/package_error.hpp"
#include "save_open_fixture.hpp"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <future>
#include <optional>
#include <string>
#include <vector>

using namespace excel;
using ::testing::ElementsAre;

namespace {

constexpr const char* NotValidSentence =
    "because the file format or file extension is not valid. Verify that the file has not been corrupted and that "
    "the file extension matches the format of the file.";

// What the statement came to: "done", or "refused: " and the text of Excel's refusal.
template <class Statement>
std::string Outcome(Statement&& statement) {
    try {
        statement();
    } catch (const AutomationError& error) {
        return (error.code() == kRefused ? std::string("refused: ") : "error " + std::to_string(error.code()) + ": ") +
               error.what();
    }
    return "done";
}

// The names in a folder, sorted.
std::vector<std::string> Entries(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

// What the package layer says of the file when reading it.
std::string PackageReason(const std::string& path) {
    try {
        ooxml::ReadPackage(path);
    } catch (const ooxml::PackageError& error) {
        return error.what();
    }
    return "read";
}

class FileSystemSaveOpen : public SaveOpenTest {};

TEST_F(FileSystemSaveOpen, OpeningANamedPipeIsRefusedAtOnce) {
    const std::string pipe = PathOf("pipe.xlsx");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0666), 0);
    auto opening = std::async(std::launch::async, [&] { return Outcome([&] { app->Workbooks()->Open(pipe); }); });
    if (opening.wait_for(std::chrono::seconds(10)) != std::future_status::ready) {
        // A writer that comes and goes ends the wait, so the test fails rather than hangs.
        close(open(pipe.c_str(), O_WRONLY | O_NONBLOCK));
        FAIL() << "opening a named pipe waited for a writer";
    }
    EXPECT_EQ(opening.get(), "refused: Cannot access 'pipe.xlsx'. (opening the file: not a regular file)");
    EXPECT_EQ(app->Workbooks()->Count(), 1);
}

TEST_F(FileSystemSaveOpen, OpeningAFolderIsRefusedAsNoRegularFile) {
    std::filesystem::create_directory(folder / "folder.xlsx");
    EXPECT_EQ(Outcome([&] { app->Workbooks()->Open(PathOf("folder.xlsx")); }),
              "refused: Cannot access 'folder.xlsx'. (opening the file: not a regular file)");
}

// Root reads any file, so the workbook is opened by a child that gave root's rights up.
TEST_F(FileSystemSaveOpen, OpeningAFileThatMayNotBeReadNamesThePermissionProblem) {
    book->SaveAs(PathOf("locked.xlsx"));
    book->Close();
    ASSERT_EQ(chmod(PathOf("locked.xlsx").c_str(), 0), 0);
    const std::optional<std::string> outcome = ooxml_test::RunInChild(
        ooxml_test::WithoutRootRights, [&] { return Outcome([&] { app->Workbooks()->Open(PathOf("locked.xlsx")); }); });
    if (!outcome) {
        GTEST_SKIP() << "cannot give root's rights up";
    }
    EXPECT_EQ(*outcome, "refused: Cannot access 'locked.xlsx'. (opening the file: Permission denied)");
}

TEST_F(FileSystemSaveOpen, OpeningAMissingFileNamesTheSystemsReason) {
    EXPECT_EQ(Outcome([&] { app->Workbooks()->Open(PathOf("none.xlsx")); }),
              "refused: Sorry, we couldn't find " + PathOf("none.xlsx") +
                  ". Is it possible it was moved, renamed or deleted? (opening the file: No such file or directory)");
}

TEST_F(FileSystemSaveOpen, OpeningAFileThatIsNoZipKeepsExcelsSentenceAndAddsThePackagesReason) {
    std::ofstream(PathOf("bad.xlsx")) << "not a zip";
    EXPECT_EQ(Outcome([&] { app->Workbooks()->Open(PathOf("bad.xlsx")); }),
              std::string("refused: Excel cannot open the file 'bad.xlsx' ") + NotValidSentence + " (" +
                  PackageReason(PathOf("bad.xlsx")) + ")");
}

TEST_F(FileSystemSaveOpen, OpeningAPackageWithABrokenPartKeepsExcelsSentenceAndAddsThePackagesReason) {
    const ooxml_test::TemporaryPackage broken(ooxml_test::MinimalPackage("<sheetData><row r=\"1\"></sheetData>"));
    const std::string reason = PackageReason(broken.Path());
    ASSERT_NE(reason, "read");
    EXPECT_EQ(Outcome([&] { app->Workbooks()->Open(broken.Path()); }),
              "refused: Excel cannot open the file '" + std::filesystem::path(broken.Path()).filename().string() +
                  "' " + NotValidSentence + " (" + reason + ")");
}

// The disk is a file system of 16 KiB mounted, for the child alone, on a folder of the test's.
TEST_F(FileSystemSaveOpen, SavingOntoAFullDiskNamesTheReasonAndLeavesNothing) {
    std::filesystem::create_directory(folder / "full");
    uint32_t random = 1;
    for (int row = 1; row <= 2000; ++row) {
        std::string text;
        for (int i = 0; i < 4; ++i) {
            random = random * 1664525u + 1013904223u;
            text += std::to_string(random);
        }
        At(("A" + std::to_string(row)).c_str())->SetValue(text);
    }
    const std::string full = (folder / "full").string();
    const std::optional<std::string> outcome =
        ooxml_test::RunInChild([&] { return ooxml_test::WithSmallFileSystemAt(full, 16 * 1024); },
                               [&] {
                                   const std::string saved = Outcome([&] { book->SaveAs(PathOf("full/book.xlsx")); });
                                   return saved + " | left: " + std::to_string(Entries(full).size());
                               });
    if (!outcome) {
        GTEST_SKIP() << "cannot mount a file system";
    }
    EXPECT_EQ(*outcome, "refused: Document not saved. (writing the package: No space left on device) | left: 0");
}

TEST_F(FileSystemSaveOpen, ANameTooLongIsNamedBySaveAsAndOpen) {
    const std::string name = std::string(295, 'n') + ".xlsx";
    EXPECT_EQ(Outcome([&] { book->SaveAs(PathOf(name)); }),
              "refused: Document not saved. (saving the file: File name too long)");
    EXPECT_EQ(Outcome([&] { app->Workbooks()->Open(PathOf(name)); }),
              "refused: Sorry, we couldn't find " + PathOf(name) +
                  ". Is it possible it was moved, renamed or deleted? (opening the file: File name too long)");
    EXPECT_EQ(book->Name(), "Book1");
    EXPECT_TRUE(Entries(folder).empty());
}

TEST_F(FileSystemSaveOpen, ASaveRemovesTheTemporaryAKilledSaveLeft) {
    book->SaveAs(PathOf("book.xlsx"));
    ooxml_test::KilledSave(PathOf("book.xlsx"), "half a workbook");
    ASSERT_EQ(Entries(folder).size(), 2u);
    At("A1")->SetValue("saved again");
    book->Save();
    EXPECT_THAT(Entries(folder), ElementsAre("book.xlsx"));
    book->Close();
    EXPECT_EQ(app->Workbooks()->Open(PathOf("book.xlsx"))->Worksheets(1)->Range("A1")->Value(), Variant("saved again"));
}

TEST_F(FileSystemSaveOpen, ASaveLeavesTheTemporaryOfASaveRunningInAnotherProcess) {
    ooxml_test::RunningSave running(PathOf("book.xlsx"), "theirs");
    const std::vector<std::string> theirs = Entries(folder);
    ASSERT_EQ(theirs.size(), 1u);
    book->SaveAs(PathOf("book.xlsx"));
    EXPECT_THAT(Entries(folder), ElementsAre(theirs[0], "book.xlsx"));
    running.Finish(false);
    EXPECT_THAT(Entries(folder), ElementsAre("book.xlsx"));
}

TEST_F(FileSystemSaveOpen, ATargetNameOf250BytesSavesAndReopens) {
    const std::string name = std::string(245, 'n') + ".xlsx";
    At("A1")->SetValue("long name");
    auto opened = SaveAndReopen(name);
    EXPECT_EQ(opened->Name(), name);
    EXPECT_EQ(opened->Worksheets(1)->Range("A1")->Value(), Variant("long name"));
    EXPECT_THAT(Entries(folder), ElementsAre(name));
}

TEST_F(FileSystemSaveOpen, SavingOntoASymbolicLinkReplacesTheFileItLeadsToAndKeepsTheLink) {
    std::filesystem::create_directory(folder / "real");
    At("A1")->SetValue("old");
    book->SaveAs(PathOf("real/report.xlsx"));
    book->Close();
    std::filesystem::create_symlink("real/report.xlsx", folder / "link.xlsx");

    auto other = app->Workbooks()->Add();
    other->Worksheets(1)->Range("A1")->SetValue("new");
    other->SaveAs(PathOf("link.xlsx"));
    other->Close();
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.xlsx"));
    EXPECT_EQ(std::filesystem::read_symlink(folder / "link.xlsx"), "real/report.xlsx");
    EXPECT_THAT(Entries(folder), ElementsAre("link.xlsx", "real"));
    EXPECT_THAT(Entries(folder / "real"), ElementsAre("report.xlsx"));
    EXPECT_EQ(app->Workbooks()->Open(PathOf("real/report.xlsx"))->Worksheets(1)->Range("A1")->Value(), Variant("new"));
}

TEST_F(FileSystemSaveOpen, AReadOnlyTargetIsRefusedAndLeftUnchanged) {
    book->SaveAs(PathOf("ro.xlsx"));
    const std::string before = ooxml_test::FileBytes(PathOf("ro.xlsx"));
    ASSERT_EQ(chmod(PathOf("ro.xlsx").c_str(), 0444), 0);
    At("A1")->SetValue("changed");
    EXPECT_EQ(Outcome([&] { book->Save(); }),
              "refused: Cannot access read-only document 'ro.xlsx'. (saving the file: the file is read-only)");
    EXPECT_EQ(ooxml_test::FileBytes(PathOf("ro.xlsx")), before);
    EXPECT_THAT(Entries(folder), ElementsAre("ro.xlsx"));
    EXPECT_FALSE(book->Saved());
}

// The paths up to the NUL name a workbook that exists and a file that could be written: a save or
// open that cut the path there would succeed.
TEST_F(FileSystemSaveOpen, APathWithANulIsRefusedByOpenAndSaveAsAndNothingIsWritten) {
    book->SaveAs(PathOf("book.xlsx"));
    const std::string nul(1, '\0');
    const std::string shownNul = "\xEF\xBF\xBD";
    EXPECT_EQ(Outcome([&] { app->Workbooks()->Open(PathOf("book.xlsx") + nul + "other.xlsx"); }),
              "refused: Sorry, we couldn't find " + PathOf("book.xlsx") + shownNul +
                  "other.xlsx. Is it possible it was moved, renamed or deleted? (opening the file: the file name "
                  "contains a NUL character)");
    EXPECT_EQ(app->Workbooks()->Count(), 1);
    EXPECT_EQ(Outcome([&] { book->SaveAs(PathOf("copy") + nul + ".xlsx"); }),
              "refused: Microsoft Excel cannot access the file '" + PathOf("copy") + shownNul +
                  ".xlsx'. There are several possible reasons:\n\n"
                  "The file name or path does not exist.\n"
                  "The file is being used by another program.\n"
                  "The workbook you are trying to save has the same name as a currently open workbook. (saving the "
                  "file: the file name contains a NUL character)");
    EXPECT_EQ(book->Name(), "book.xlsx");
    EXPECT_THAT(Entries(folder), ElementsAre("book.xlsx"));
}

}  // namespace
