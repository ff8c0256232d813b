#include "reader_test_package.hpp"

#include <gtest/gtest.h>
#include <unistd.h>
#include <zip.h>

#include <atomic>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace ooxml_test {

namespace {

std::string FreshPath() {
    static std::atomic<int> counter{0};
    return ::testing::TempDir() + "reader_test_" + std::to_string(::getpid()) + "_" + std::to_string(counter++) +
           ".xlsx";
}

}  // namespace

std::string ContentTypesPart(const std::string& entries) {
    return std::string(XmlDeclaration) +
           R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
           R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
           R"(<Default Extension="xml" ContentType="application/xml"/>)" +
           entries + "</Types>";
}

std::string RelationshipsPart(const std::vector<std::string>& relationships) {
    std::string xml = std::string(XmlDeclaration) +
                      R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)";
    for (const std::string& relationship : relationships) {
        xml += relationship;
    }
    return xml + "</Relationships>";
}

std::string Relationship(const std::string& id, const std::string& type, const std::string& target, bool external) {
    const std::string fullType = type.find("://") == std::string::npos
                                     ? "http://schemas.openxmlformats.org/officeDocument/2006/relationships/" + type
                                     : type;
    return "<Relationship Id=\"" + id + "\" Type=\"" + fullType + "\" Target=\"" + target + "\"" +
           (external ? " TargetMode=\"External\"" : "") + "/>";
}

PackageParts MinimalPackage(const std::string& sheetContent) {
    return {
        {"[Content_Types].xml",
         ContentTypesPart(
             R"(<Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>)"
             R"(<Override PartName="/xl/worksheets/sheet1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)")},
        {"_rels/.rels", RelationshipsPart({Relationship("rId1", "officeDocument", "xl/workbook.xml")})},
        {"xl/workbook.xml",
         R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
         R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
         R"(<sheets><sheet name="Sheet1" sheetId="1" r:id="rId1"/></sheets></workbook>)"},
        {"xl/_rels/workbook.xml.rels", RelationshipsPart({Relationship("rId1", "worksheet", "worksheets/sheet1.xml")})},
        {"xl/worksheets/sheet1.xml",
         R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
         R"(<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)" +
             sheetContent + "</worksheet>"},
    };
}

PackageParts MinimalPackageWithStyles(const std::string& sheetContent, const std::string& styles) {
    PackageParts parts = MinimalPackage(sheetContent);
    parts["xl/styles.xml"] = styles;
    parts["xl/_rels/workbook.xml.rels"] = RelationshipsPart(
        {Relationship("rId1", "worksheet", "worksheets/sheet1.xml"), Relationship("rId2", "styles", "styles.xml")});
    return parts;
}

TemporaryPackage::TemporaryPackage(const PackageParts& parts) : path_(FreshPath()) {
    int error = 0;
    zip_t* archive = zip_open(path_.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (archive == nullptr) {
        throw std::runtime_error("cannot create " + path_);
    }
    for (const auto& [name, bytes] : parts) {
        zip_source_t* source = zip_source_buffer(archive, bytes.data(), bytes.size(), 0);
        if (source == nullptr || zip_file_add(archive, name.c_str(), source, ZIP_FL_ENC_UTF_8) < 0) {
            zip_source_free(source);
            zip_discard(archive);
            throw std::runtime_error("cannot add " + name);
        }
    }
    if (zip_close(archive) != 0) {
        zip_discard(archive);
        throw std::runtime_error("cannot write " + path_);
    }
}

TemporaryPackage::TemporaryPackage(const std::string& bytes) : path_(FreshPath()) {
    std::ofstream(path_, std::ios::binary) << bytes;
}

TemporaryPackage::~TemporaryPackage() {
    std::remove(path_.c_str());
}

PackageParts ReadPackageParts(const std::string& path) {
    int error = 0;
    zip_t* archive = zip_open(path.c_str(), ZIP_RDONLY, &error);
    if (archive == nullptr) {
        throw std::runtime_error("cannot open " + path);
    }
    PackageParts parts;
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        zip_stat_t stat;
        zip_file_t* file = zip_fopen_index(archive, static_cast<zip_uint64_t>(i), 0);
        if (file == nullptr || zip_stat_index(archive, static_cast<zip_uint64_t>(i), 0, &stat) != 0) {
            zip_discard(archive);
            throw std::runtime_error("cannot read entry of " + path);
        }
        std::string bytes(static_cast<std::size_t>(stat.size), '\0');
        const zip_int64_t read = zip_fread(file, bytes.data(), bytes.size());
        zip_fclose(file);
        bytes.resize(read < 0 ? 0 : static_cast<std::size_t>(read));
        if (!parts.emplace(stat.name, std::move(bytes)).second) {
            zip_discard(archive);
            throw std::runtime_error(std::string("the package holds ") + stat.name + " twice");
        }
    }
    zip_discard(archive);
    return parts;
}

std::string FileBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

}  // namespace ooxml_test
