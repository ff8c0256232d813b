// Damaged and garbled packages: the reader returns a document or throws PackageError, and never
// crashes, hangs or throws anything else. Run under the sanitizers this is also a memory check.

#include "ooxml/reader_test_package.hpp"

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/package_error.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>

namespace {

using ooxml_test::PackageParts;
using ooxml_test::TemporaryPackage;

const std::string CorpusDir = VOS_SHARED_DIR "/excel-corpus/";

const std::vector<std::string>& SampleWorkbooks() {
    static const std::vector<std::string> files{
        CorpusDir + "realworld-excel/oxsdk__TestFiles__basicspreadsheet.xlsx",
        CorpusDir + "cells-drawings-xlsxwriter/xw__rich_string06.xlsx",
        CorpusDir + "cells-drawings-xlsxwriter/rxw__print_area08.xlsx",
        CorpusDir + "cells-drawings-xlsxwriter/xw__textbox24.xlsx",
        CorpusDir + "realworld-excel/poi__commentTest.xlsx",
    };
    return files;
}

struct Outcome {
    int read = 0;
    int refused = 0;
};

// Reads the package; any failure other than a PackageError fails the test.
void ReadOrRefuse(const TemporaryPackage& package, Outcome& outcome, const std::string& what) {
    try {
        ooxml::ReadPackage(package.Path());
        ++outcome.read;
    } catch (const ooxml::PackageError&) {
        ++outcome.refused;
    } catch (const std::exception& error) {
        ADD_FAILURE() << what << ": " << error.what();
    }
}

TEST(HostileInputReaderTest, TruncatedFilesAreRefused) {
    for (const std::string& file : SampleWorkbooks()) {
        const std::string bytes = ooxml_test::FileBytes(file);
        ASSERT_GT(bytes.size(), 1000u) << file;
        Outcome outcome;
        for (std::size_t step = 0; step < 40; ++step) {
            const TemporaryPackage truncated(bytes.substr(0, bytes.size() * step / 40));
            ReadOrRefuse(truncated, outcome, file + " cut at " + std::to_string(step) + "/40");
        }
        // Without its central directory at the end no cut-off zip can be opened.
        EXPECT_EQ(outcome.read, 0) << file;
    }
}

TEST(HostileInputReaderTest, FilesWithDamagedBytesReadOrAreRefused) {
    std::mt19937 random(20240305);
    for (const std::string& file : SampleWorkbooks()) {
        const std::string bytes = ooxml_test::FileBytes(file);
        Outcome outcome;
        for (int variant = 0; variant < 60; ++variant) {
            std::string damaged = bytes;
            for (int flip = 0; flip < 1 + variant % 4; ++flip) {
                damaged[random() % damaged.size()] = static_cast<char>(random());
            }
            const TemporaryPackage package(damaged);
            ReadOrRefuse(package, outcome, file + " variant " + std::to_string(variant));
        }
        EXPECT_EQ(outcome.read + outcome.refused, 60) << file;
    }
}

// The zip is sound but its XML is not: truncated parts, and parts with characters that matter to
// XML and to the reader's numbers dropped in at random.
TEST(HostileInputReaderTest, GarbledPartsReadOrAreRefused) {
    constexpr std::string_view Noise = "<>&\"'=/:;_x0123456789-+.eE \xC3\xFF";
    std::mt19937 random(7);
    Outcome outcome;
    for (const std::string& file : SampleWorkbooks()) {
        const PackageParts original = ooxml_test::ReadPackageParts(file);
        for (const auto& [name, content] : original) {
            if (!name.ends_with(".xml") && !name.ends_with(".rels") && !name.ends_with(".vml")) {
                continue;
            }
            for (int variant = 0; variant < 12; ++variant) {
                PackageParts parts = original;
                std::string& garbled = parts[name];
                if (variant % 3 == 0) {
                    garbled.resize(random() % (garbled.size() + 1));
                } else {
                    for (int change = 0; change < 1 + variant; ++change) {
                        garbled[random() % garbled.size()] = Noise[random() % Noise.size()];
                    }
                }
                const TemporaryPackage package(parts);
                ReadOrRefuse(package, outcome, file + " " + name + " variant " + std::to_string(variant));
            }
        }
    }
    EXPECT_GT(outcome.read, 0);
    EXPECT_GT(outcome.refused, 0);
}

}  // namespace
