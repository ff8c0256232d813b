// Opens workbooks made to be hard on a reader and reports, for each, the wall time of
// Workbooks.Open, what it answered and the peak resident memory of the process that opened it:
//   many defined names (1,000 and 100,000) and many sheets (1,000 and 70,000), whose times should
//   grow in proportion; a shared string table and a styles part that inflate from a few megabytes
//   to a gigabyte of tiny entries, which must be refused well under 1 GiB.
//   hostile_open_bench [case]   (without a case, each case runs in a process of its own)

#include "measure.hpp"
#include "ooxml/zip/zip_writer.hpp"

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr const char* kMainNamespace =
    R"(xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" )"
    R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")";
constexpr const char* kRelationshipType = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

struct Workload {
    int sheets = 1;
    int names = 0;
    // A part beside the workbook ("sharedStrings", "styles") written by repeating one element.
    std::string repeatedPart;
    std::string repeatedOpening, repeatedElement, repeatedClosing;
    long repetitions = 0;
};

void WriteText(ooxml::ZipWriter& zip, const std::string& text) {
    zip.Write(text.data(), text.size());
}

void WritePackage(const Workload& load, const std::string& path) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    ooxml::ZipWriter zip(fd);
    std::string types =
        R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
        R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
        R"(<Default Extension="xml" ContentType="application/xml"/>)"
        R"(<Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>)";
    std::string sheets, relationships, names;
    for (int sheet = 1; sheet <= load.sheets; ++sheet) {
        const std::string number = std::to_string(sheet);
        types += R"(<Override PartName="/xl/worksheets/sheet)" + number +
                 R"(.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)";
        sheets += R"(<sheet name="S)" + number + R"(" sheetId=")" + number + R"(" r:id="rId)" + number + R"("/>)";
        relationships += R"(<Relationship Id="rId)" + number + R"(" Type=")" + kRelationshipType +
                         R"(worksheet" Target="worksheets/sheet)" + number + R"(.xml"/>)";
    }
    for (int name = 0; name < load.names; ++name) {
        names += R"(<definedName name="Name_)" + std::to_string(name) + R"(">S1!$A$)" +
                 std::to_string(name % 1000 + 1) + "</definedName>";
    }
    if (!load.repeatedPart.empty()) {
        relationships += R"(<Relationship Id="rIdX" Type=")" + std::string(kRelationshipType) + load.repeatedPart +
                         R"(" Target=")" + load.repeatedPart + R"(.xml"/>)";
    }
    zip.BeginEntry("[Content_Types].xml");
    WriteText(zip, types + "</Types>");
    zip.EndEntry();
    zip.BeginEntry("_rels/.rels");
    WriteText(zip, R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
                   R"(<Relationship Id="rId1" Type=")" +
                       std::string(kRelationshipType) +
                       R"(officeDocument" Target="xl/workbook.xml"/></Relationships>)");
    zip.EndEntry();
    zip.BeginEntry("xl/workbook.xml");
    WriteText(zip, std::string("<workbook ") + kMainNamespace + "><sheets>" + sheets + "</sheets>" +
                       (names.empty() ? "" : "<definedNames>" + names + "</definedNames>") + "</workbook>");
    zip.EndEntry();
    zip.BeginEntry("xl/_rels/workbook.xml.rels");
    WriteText(zip, R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)" +
                       relationships + "</Relationships>");
    zip.EndEntry();
    for (int sheet = 1; sheet <= load.sheets; ++sheet) {
        zip.BeginEntry("xl/worksheets/sheet" + std::to_string(sheet) + ".xml");
        WriteText(zip, std::string("<worksheet ") + kMainNamespace + "><sheetData/></worksheet>");
        zip.EndEntry();
    }
    if (!load.repeatedPart.empty()) {
        zip.BeginEntry("xl/" + load.repeatedPart + ".xml");
        WriteText(zip, load.repeatedOpening);
        std::string block;
        for (int copy = 0; copy < 10000; ++copy) {
            block += load.repeatedElement;
        }
        for (long written = 0; written < load.repetitions; written += 10000) {
            WriteText(zip, block);
        }
        WriteText(zip, load.repeatedClosing);
        zip.EndEntry();
    }
    zip.Finish();
    ::close(fd);
}

Workload Many(int sheets, int names) {
    Workload load;
    load.sheets = sheets;
    load.names = names;
    return load;
}

std::vector<std::pair<std::string, Workload>> Cases() {
    Workload strings;
    strings.repeatedPart = "sharedStrings";
    strings.repeatedOpening = std::string("<sst ") + kMainNamespace + ">";
    strings.repeatedElement = "<si><t>a</t></si>";
    strings.repeatedClosing = "</sst>";
    strings.repetitions = 56'000'000;
    Workload styles;
    styles.repeatedPart = "styles";
    styles.repeatedOpening = std::string("<styleSheet ") + kMainNamespace +
                             R"(><fonts count="1"><font/></fonts><fills count="1"><fill/></fills>)"
                             R"(<borders count="1"><border/></borders><cellXfs>)";
    styles.repeatedElement = R"(<xf numFmtId="0" fontId="0" fillId="0" borderId="0"/>)";
    styles.repeatedClosing = "</cellXfs></styleSheet>";
    styles.repetitions = 20'000'000;
    return {{"names-1000", Many(1, 1000)},    {"names-100000", Many(1, 100000)}, {"sheets-1000", Many(1000, 0)},
            {"sheets-70000", Many(70000, 0)}, {"strings-0.9GB", strings},        {"styles-1GB", styles}};
}

int RunCase(const std::string& name, const Workload& load) {
    const std::string path =
        (std::filesystem::temp_directory_path() / ("hostile_open_bench_" + name + ".xlsx")).string();
    WritePackage(load, path);
    const double fileMebibytes = bench::FileMebibytes(path);
    const double before = bench::PeakResidentMebibytes();
    auto app = excel::embedded::CreateApplication();
    std::string answer = "opened";
    const auto start = std::chrono::steady_clock::now();
    try {
        auto book = app->Workbooks()->Open(path);
        answer = "opened, " + std::to_string(book->Worksheets()->Count()) + " sheets, " +
                 std::to_string(book->Names()->Count()) + " names";
        book->Close(false);
    } catch (const excel::AutomationError& error) {
        answer = std::string("refused: ") + error.what();
    }
    const double seconds = bench::SecondsSince(start);
    std::filesystem::remove(path);
    std::printf("%-14s file %7.2f MiB  open %7.3f s  peak RSS %7.1f MiB (%.1f before)  %s\n", name.c_str(),
                fileMebibytes, seconds, bench::PeakResidentMebibytes(), before, answer.substr(0, 160).c_str());
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    for (const auto& [name, load] : Cases()) {
        if (argc > 1 && name == argv[1]) {
            return RunCase(name, load);
        }
    }
    if (argc > 1) {
        std::fprintf(stderr, "no case %s\n", argv[1]);
        return 2;
    }
    int status = 0;
    for (const auto& [name, load] : Cases()) {
        const std::string command = std::string(argv[0]) + " " + name;
        std::fflush(stdout);
        status |= std::system(command.c_str());
    }
    return status == 0 ? 0 : 1;
}
