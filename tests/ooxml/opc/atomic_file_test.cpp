// The file a save writes beside its target: its temporary's name, what a killed save leaves and
// the next save removes, symbolic links, read-only targets and paths no file can have.

#include "ooxml/opc/atomic_file.hpp"

#include "ooxml/file_descriptor_writes.hpp"
#include "ooxml/opc/temporary_file_name.hpp"
#include "ooxml/other_process_saves.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/package_refusal.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace ooxml;
using namespace writer_test;
using ooxml_test::Refusal;
using ooxml_test::RefusalOf;
using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

void Save(const std::string& target, const std::string& content) {
    AtomicFile file(target);
    WriteAll(file.Descriptor(), content.data(), content.size(), "writing");
    file.Commit();
}

std::optional<Refusal> SaveRefusal(const std::string& target) {
    return RefusalOf([&] { Save(target, "new"); });
}

std::vector<std::string> EntriesOf(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

TEST(AtomicFile, ATemporaryNameIsShortWhateverTheTargetsLength) {
    ScratchFolder folder;
    const std::string name = std::string(250, 'n') + ".xlsx";
    AtomicFile file(folder.File(name));
    const std::vector<std::string> entries = folder.Entries();
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].size(), 39u) << entries[0];
    EXPECT_TRUE(IsTemporaryName(entries[0], TemporaryNamePrefix(name))) << entries[0];
    file.Commit();
    EXPECT_THAT(folder.Entries(), ElementsAre(name));
}

TEST(AtomicFile, ATargetOf255BytesIsSaved) {
    ScratchFolder folder;
    const std::string name = std::string(250, 'n') + ".xlsx";
    ASSERT_EQ(name.size(), 255u);
    Save(folder.File(name), "content");
    EXPECT_EQ(FileBytes(folder.File(name)), "content");
    EXPECT_THAT(folder.Entries(), ElementsAre(name));
}

TEST(AtomicFile, ATargetNameTooLongIsRefusedWithTheSystemsReason) {
    ScratchFolder folder;
    EXPECT_EQ(SaveRefusal(folder.File(std::string(295, 'n') + ".xlsx")),
              (Refusal{PackageError::Reason::WriteFailed, "saving the file: File name too long"}));
    EXPECT_TRUE(folder.Entries().empty());
}

TEST(AtomicFile, TemporaryNamesOfOneTargetShareTheirStartAndNoOtherTargets) {
    const std::string prefix = TemporaryNamePrefix("book.xlsx");
    EXPECT_EQ(prefix, TemporaryNamePrefix("book.xlsx"));
    EXPECT_NE(prefix, TemporaryNamePrefix("book2.xlsx"));
    EXPECT_TRUE(IsTemporaryName(TemporaryName(prefix, 0x0123456789abcdefu), prefix));
    EXPECT_EQ(TemporaryName(prefix, 0x2au), prefix + "000000000000002a.tmp");
    EXPECT_FALSE(IsTemporaryName(TemporaryName(TemporaryNamePrefix("book2.xlsx"), 1), prefix));
    EXPECT_FALSE(IsTemporaryName(prefix + "00000000000000zz.tmp", prefix));
    EXPECT_FALSE(IsTemporaryName(prefix + "0000000000000000.tmp.x", prefix));
    EXPECT_FALSE(IsTemporaryName("book.xlsx", prefix));
}

TEST(AtomicFile, AKilledSaveLeavesTheTargetAndItsTemporaryWhichTheNextSaveRemoves) {
    ScratchFolder folder;
    const std::string target = folder.File("book.xlsx");
    Save(target, "old");
    ooxml_test::KilledSave(target, "half");
    EXPECT_EQ(FileBytes(target), "old");
    ASSERT_EQ(folder.Entries().size(), 2u);

    Save(target, "new");
    EXPECT_EQ(FileBytes(target), "new");
    EXPECT_THAT(folder.Entries(), ElementsAre("book.xlsx"));
}

TEST(AtomicFile, AFailedSaveAlsoRemovesWhatAKilledSaveLeft) {
    ScratchFolder folder;
    const std::string target = folder.File("book.xlsx");
    ooxml_test::KilledSave(target, "half");
    ASSERT_EQ(folder.Entries().size(), 1u);
    { AtomicFile abandoned(target); }
    EXPECT_TRUE(folder.Entries().empty());
}

TEST(AtomicFile, TheTemporaryOfASaveRunningInAnotherProcessStays) {
    ScratchFolder folder;
    const std::string target = folder.File("book.xlsx");
    ooxml_test::RunningSave running(target, "theirs");
    const std::vector<std::string> theirs = folder.Entries();
    ASSERT_EQ(theirs.size(), 1u);

    Save(target, "ours");
    EXPECT_EQ(FileBytes(target), "ours");
    EXPECT_THAT(folder.Entries(), UnorderedElementsAre("book.xlsx", theirs[0]));

    running.Finish(true);
    EXPECT_EQ(FileBytes(target), "theirs");
    EXPECT_THAT(folder.Entries(), ElementsAre("book.xlsx"));
}

TEST(AtomicFile, TheTemporariesOfOtherTargetsStay) {
    ScratchFolder folder;
    ooxml_test::KilledSave(folder.File("other.xlsx"), "half");
    const std::vector<std::string> left = folder.Entries();
    ASSERT_EQ(left.size(), 1u);
    Save(folder.File("book.xlsx"), "new");
    EXPECT_THAT(folder.Entries(), UnorderedElementsAre("book.xlsx", left[0]));
}

TEST(AtomicFile, SavingOntoASymbolicLinkReplacesTheFileItLeadsToAndKeepsTheLink) {
    ScratchFolder folder;
    std::filesystem::create_directory(folder.Path() / "real");
    Save(folder.File("real/book.xlsx"), "old");
    std::filesystem::create_symlink("real/book.xlsx", folder.Path() / "link.xlsx");
    std::filesystem::create_symlink(folder.Path() / "link.xlsx", folder.Path() / "link-to-link.xlsx");

    Save(folder.File("link-to-link.xlsx"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "link.xlsx"));
    EXPECT_EQ(std::filesystem::read_symlink(folder.Path() / "link.xlsx"), "real/book.xlsx");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "link-to-link.xlsx"));
    EXPECT_EQ(FileBytes(folder.File("real/book.xlsx")), "new");
    EXPECT_THAT(folder.Entries(), UnorderedElementsAre("real", "link.xlsx", "link-to-link.xlsx"));
    EXPECT_THAT(EntriesOf(folder.Path() / "real"), ElementsAre("book.xlsx"));
}

TEST(AtomicFile, ALinkToAFileNotThereYetCreatesTheFile) {
    ScratchFolder folder;
    std::filesystem::create_symlink("book.xlsx", folder.Path() / "link.xlsx");
    Save(folder.File("link.xlsx"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "link.xlsx"));
    EXPECT_EQ(FileBytes(folder.File("book.xlsx")), "new");
}

TEST(AtomicFile, ALinkThatLeadsToItselfIsRefused) {
    ScratchFolder folder;
    std::filesystem::create_symlink("loop.xlsx", folder.Path() / "loop.xlsx");
    EXPECT_EQ(SaveRefusal(folder.File("loop.xlsx")),
              (Refusal{PackageError::Reason::WriteFailed, "saving the file: Too many levels of symbolic links"}));
    EXPECT_THAT(folder.Entries(), ElementsAre("loop.xlsx"));
}

TEST(AtomicFile, AReadOnlyTargetIsRefusedEvenForRootAndLeftUnchanged) {
    ScratchFolder folder;
    const std::string target = folder.File("book.xlsx");
    Save(target, "old");
    ASSERT_EQ(chmod(target.c_str(), 0444), 0);
    EXPECT_EQ(SaveRefusal(target), (Refusal{PackageError::Reason::ReadOnly, "saving the file: the file is read-only"}));
    EXPECT_EQ(FileBytes(target), "old");
    EXPECT_THAT(folder.Entries(), ElementsAre("book.xlsx"));
}

TEST(AtomicFile, ANamedPipeTargetIsRefused) {
    ScratchFolder folder;
    ASSERT_EQ(mkfifo(folder.File("pipe.xlsx").c_str(), 0666), 0);
    EXPECT_EQ(SaveRefusal(folder.File("pipe.xlsx")),
              (Refusal{PackageError::Reason::AccessDenied, "saving the file: not a regular file"}));
    EXPECT_TRUE(std::filesystem::is_fifo(folder.Path() / "pipe.xlsx"));
    EXPECT_THAT(folder.Entries(), ElementsAre("pipe.xlsx"));
}

TEST(AtomicFile, APathWithANulIsRefusedAndNothingIsWritten) {
    ScratchFolder folder;
    EXPECT_EQ(SaveRefusal(folder.File(std::string("book\0.xlsx", 10))),
              (Refusal{PackageError::Reason::InvalidPath, "saving the file: the file name contains a NUL character"}));
    EXPECT_TRUE(folder.Entries().empty());
}

}  // namespace
