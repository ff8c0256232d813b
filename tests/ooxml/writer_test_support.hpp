#pragma once

// Helpers for the package writer tests: a scratch folder, reading entries of a written zip with
// libzip (independently of our own reader), parsing XML, and running the conformance tools.

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/byte_sink.hpp"
#include "ooxml/xml/xml_writer.hpp"
#include "reader_test_package.hpp"

#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <zip.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace writer_test {

// A fresh folder under the system's temporary folder, removed with everything in it.
class ScratchFolder {
public:
    ScratchFolder() {
        std::random_device random;
        path_ = std::filesystem::temp_directory_path() / ("vos-writer-test-" + std::to_string(random()) + "-" +
                                                          std::to_string(random()));
        std::filesystem::create_directories(path_);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::string File(const std::string& name) const { return (path_ / name).string(); }
    const std::filesystem::path& Path() const { return path_; }

    std::vector<std::string> Entries() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

private:
    std::filesystem::path path_;
};

using ooxml_test::FileBytes;

// The names of a zip's entries in stored order, read with libzip.
inline std::vector<std::string> ZipEntryNames(const std::string& path) {
    int error = 0;
    zip_t* archive = zip_open(path.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, &error);
    EXPECT_NE(archive, nullptr) << "libzip cannot open " << path << " (error " << error << ")";
    std::vector<std::string> names;
    if (archive == nullptr) {
        return names;
    }
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive, 0); ++i) {
        names.emplace_back(zip_get_name(archive, static_cast<zip_uint64_t>(i), 0));
    }
    zip_close(archive);
    return names;
}

// The content of one entry, or nothing when the archive has no such entry. libzip checks the CRC.
inline std::optional<std::string> ZipEntry(const std::string& path, const std::string& name) {
    int error = 0;
    zip_t* archive = zip_open(path.c_str(), ZIP_RDONLY, &error);
    if (archive == nullptr) {
        ADD_FAILURE() << "libzip cannot open " << path;
        return std::nullopt;
    }
    std::optional<std::string> content;
    zip_stat_t status;
    if (zip_stat(archive, name.c_str(), 0, &status) == 0) {
        zip_file_t* file = zip_fopen(archive, name.c_str(), 0);
        std::string bytes(status.size, '\0');
        const zip_int64_t read = zip_fread(file, bytes.data(), bytes.size());
        EXPECT_EQ(read, static_cast<zip_int64_t>(status.size)) << name;
        EXPECT_EQ(zip_fclose(file), 0) << "CRC or read error in " << name;
        content = std::move(bytes);
    }
    zip_close(archive);
    return content;
}

// Parses an entry of the package, failing the test when it is missing or not well-formed.
inline std::unique_ptr<pugi::xml_document> ParsePart(const std::string& path, const std::string& name) {
    auto document = std::make_unique<pugi::xml_document>();
    const std::optional<std::string> content = ZipEntry(path, name);
    if (!content) {
        ADD_FAILURE() << name << " is missing";
        return document;
    }
    const pugi::xml_parse_result result = document->load_buffer(content->data(), content->size());
    EXPECT_TRUE(result) << name << ": " << result.description();
    return document;
}

// Runs what an XmlWriter writes into a string.
inline std::string WriteToString(const std::function<void(ooxml::XmlWriter&)>& write) {
    ooxml::StringSink sink;
    ooxml::XmlWriter xml(sink);
    write(xml);
    xml.Flush();
    return sink.Text();
}

inline std::unique_ptr<pugi::xml_document> ParseXml(const std::string& xml) {
    auto document = std::make_unique<pugi::xml_document>();
    const pugi::xml_parse_result result = document->load_string(xml.c_str());
    EXPECT_TRUE(result) << result.description() << "\n" << xml;
    return document;
}

// The XML a writer of one of a sheet's parts (drawing, comments) writes for the sheet.
inline std::unique_ptr<pugi::xml_document> WriteSheetPart(void (*write)(ooxml::XmlWriter&, const ooxml::SheetDocument&),
                                                          const ooxml::SheetDocument& sheet) {
    return ParseXml(WriteToString([&](ooxml::XmlWriter& xml) { write(xml, sheet); }));
}

// Runs a shell command; returns its exit status and puts its output (stdout and stderr) in output.
inline int RunCommand(const std::string& command, std::string& output, const ScratchFolder& folder) {
    const std::string log = folder.File("command.log");
    const int status = std::system((command + " >" + log + " 2>&1").c_str());
    output = FileBytes(log);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// A document that uses every field of the model: three sheets (one hidden), every kind of cell
// value, formulas, rich text, every kind of colour, font effect, fill, border style and
// alignment, merges, column ranges, row heights and formats, names, palette, protection,
// properties, text boxes (FullTextBoxes on the first sheet) and comments (FullComments on the
// first sheet, one more on the second).
ooxml::WorkbookDocument FullDocument();

// Three text boxes that between them use every field of the text box model, with plain and rich
// text, empty paragraphs and every kind of anchor, fill, line and text colour. A line feed ends
// the run before the next paragraph, as the reader gives it back.
std::vector<ooxml::DrawingShape> FullTextBoxes();

// Three comments, in cell order, that between them use every field of the comment model: plain
// and rich text, a repeated author, a visible note, custom colours, line and insets.
std::vector<ooxml::CellComment> FullComments();

}  // namespace writer_test
