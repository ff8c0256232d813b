#include "save_open_fixture.hpp"

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/zip/zip_archive_reader.hpp"

#include <string>

using namespace excel;

namespace {

// The cell holding the formula, with the result the cell gives (as Excel caches it).
ooxml::Cell WithFormula(ooxml::SheetDocument& sheet, ooxml::Cell result, const std::string& formula) {
    result.formula = static_cast<uint32_t>(sheet.formulas.size());
    sheet.formulas.push_back(formula);
    return result;
}

// A workbook as Excel saves it after calculating: A1 = 2, and in column B formulas whose results
// are a number, text, a logical, an error and a percentage; D1:D2 hold the array formula A1:A2*10.
ooxml::WorkbookDocument CalculatedWorkbook() {
    using ooxml::CellType;
    ooxml::WorkbookDocument document;
    document.strings = {{"ab", {}}, {"#DIV/0!", {}}};
    ooxml::CellFormat percent;
    percent.numberFormat = "0.0%";
    document.formats.push_back(percent);
    document.sheets.resize(1);
    ooxml::SheetDocument& sheet = document.sheets[0];
    sheet.name = "Data";
    const ooxml::Cell number = WithFormula(sheet, {.column = 2, .number = 4.0, .type = CellType::Number}, "A1*2");
    const ooxml::Cell array = WithFormula(sheet, {.column = 4, .number = 20.0, .type = CellType::Number}, "A1:A2*10");
    sheet.arrayFormulas.emplace(array.formula, ooxml::CellBlock{1, 4, 2, 4});
    const ooxml::Cell text = WithFormula(sheet, {.column = 2, .string = 0, .type = CellType::String}, "\"a\"&\"b\"");
    const ooxml::Cell logical = WithFormula(sheet, {.column = 2, .number = 1.0, .type = CellType::Boolean}, "A1>1");
    const ooxml::Cell error = WithFormula(sheet, {.column = 2, .string = 1, .type = CellType::Error}, "1/0");
    const ooxml::Cell share =
        WithFormula(sheet, {.column = 2, .format = 1, .number = 0.5, .type = CellType::Number}, "A1/4");
    const ooxml::Cell two{.column = 1, .number = 2.0, .type = CellType::Number};
    const ooxml::Cell zero{.column = 4, .number = 0.0, .type = CellType::Number};
    sheet.rows = {ooxml::Row{1, {}, {}, false, {two, number, array}}, ooxml::Row{2, {}, {}, false, {text, zero}},
                  ooxml::Row{3, {}, {}, false, {logical}}, ooxml::Row{4, {}, {}, false, {error}},
                  ooxml::Row{5, {}, {}, false, {share}}};
    return document;
}

std::string PartOf(const std::string& path, const std::string& part) {
    return ooxml::ZipArchiveReader(path).Read(part).value_or("");
}

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// Opens CalculatedWorkbook as Workbooks.Open does with a file Excel saved.
class OpenedFormulaTest : public SaveOpenTest {
protected:
    void SetUp() override {
        SaveOpenTest::SetUp();
        ooxml::WritePackage(CalculatedWorkbook(), PathOf("calculated.xlsx"));
        opened = app->Workbooks()->Open(PathOf("calculated.xlsx"));
        data = opened->Worksheets(1);
    }

    // Saves the opened workbook under name and answers the path.
    std::string Resave(const std::string& name) {
        opened->SaveAs(PathOf(name));
        return PathOf(name);
    }

    std::shared_ptr<Workbook> opened;
    std::shared_ptr<Worksheet> data;
};

}  // namespace

TEST_F(OpenedFormulaTest, ValueReadsTheResultExcelCalculated) {
    EXPECT_EQ(data->Range("B1")->Value(), Variant(4.0));
    EXPECT_EQ(data->Range("B2")->Value(), Variant("ab"));
    EXPECT_EQ(data->Range("B3")->Value(), Variant(true));
    EXPECT_EQ(data->Range("B4")->Value(), Variant(ErrorValue{static_cast<int32_t>(0x800A0000 + xlErrDiv0)}));
    EXPECT_EQ(data->Range("B5")->Value2(), Variant(0.5));
    EXPECT_EQ(data->Range("D1")->Value(), Variant(20.0));
    const Variant column = data->Range("B1:B2")->Value();
    EXPECT_EQ(column.Array().At(0, 0), Variant(4.0));
    EXPECT_EQ(column.Array().At(1, 0), Variant("ab"));
}

TEST_F(OpenedFormulaTest, TextShowsTheResultInTheCellsFormat) {
    EXPECT_EQ(data->Range("B5")->Text(), Variant("50.0%"));
    EXPECT_EQ(data->Range("B4")->Text(), Variant("#DIV/0!"));
    EXPECT_EQ(data->Range("B3")->Text(), Variant("TRUE"));
}

TEST_F(OpenedFormulaTest, FormulaStillReadsTheFormula) {
    EXPECT_EQ(data->Range("B1")->Formula(), Variant("=A1*2"));
    EXPECT_EQ(data->Range("B2")->Formula(), Variant("=\"a\"&\"b\""));
    EXPECT_EQ(data->Range("D1")->Formula(), Variant("=A1:A2*10"));
}

TEST_F(OpenedFormulaTest, ResavedFormulasKeepTheirResultsAndExcelRecalculatesThem) {
    const std::string path = Resave("resaved.xlsx");
    const std::string sheetXml = PartOf(path, "xl/worksheets/sheet1.xml");
    EXPECT_TRUE(Contains(sheetXml, R"(<c r="B1"><f>A1*2</f><v>4</v></c>)")) << sheetXml;
    EXPECT_TRUE(Contains(sheetXml, R"(<c r="B2" t="str"><f>"a"&amp;"b"</f><v>ab</v></c>)")) << sheetXml;
    EXPECT_TRUE(Contains(sheetXml, R"(<c r="B3" t="b"><f>A1&gt;1</f><v>1</v></c>)")) << sheetXml;
    EXPECT_TRUE(Contains(sheetXml, R"(<c r="B4" t="e"><f>1/0</f><v>#DIV/0!</v></c>)")) << sheetXml;
    EXPECT_TRUE(Contains(PartOf(path, "xl/workbook.xml"), R"(fullCalcOnLoad="1")"));
}

TEST_F(OpenedFormulaTest, ArrayFormulaSurvivesAResaveUnchanged) {
    const ooxml::WorkbookDocument resaved = ooxml::ReadPackage(Resave("array.xlsx"));
    const ooxml::SheetDocument& sheet = resaved.sheets.at(0);
    ASSERT_EQ(sheet.arrayFormulas.size(), 1u);
    const auto& [index, block] = *sheet.arrayFormulas.begin();
    EXPECT_EQ(sheet.formulas.at(index), "A1:A2*10");
    EXPECT_EQ(block, (ooxml::CellBlock{1, 4, 2, 4}));
    const ooxml::Cell& anchor = sheet.rows.at(0).cells.back();
    EXPECT_EQ(anchor.column, 4u);
    EXPECT_EQ(anchor.formula, index);
    EXPECT_EQ(anchor.number, 20.0);
}

TEST_F(OpenedFormulaTest, WritingTheCellDropsTheResult) {
    data->Range("B1")->SetFormula("=A1*3");
    EXPECT_TRUE(data->Range("B1")->Value().IsEmpty());
    EXPECT_EQ(data->Range("B1")->Formula(), Variant("=A1*3"));
    data->Range("B2")->SetValue(5.0);
    EXPECT_EQ(data->Range("B2")->Value(), Variant(5.0));
    EXPECT_EQ(data->Range("B2")->Formula(), Variant("5"));
    data->Range("B3:B4")->ClearContents();
    EXPECT_TRUE(data->Range("B3")->Value().IsEmpty());
    EXPECT_EQ(data->Range("B4")->Formula(), Variant(""));
    data->Range("B5")->Clear();
    EXPECT_EQ(data->Range("B5")->Formula(), Variant(""));
    const std::string path = Resave("rewritten.xlsx");
    EXPECT_TRUE(Contains(PartOf(path, "xl/worksheets/sheet1.xml"), R"(<c r="B1"><f>A1*3</f></c>)"));
    EXPECT_TRUE(Contains(PartOf(path, "xl/workbook.xml"), R"(fullCalcOnLoad="1")"));
}

TEST_F(OpenedFormulaTest, ResultsMoveWithTheirCellsWhenCellsShift) {
    data->Range("A1:B1")->Insert(Variant(xlShiftDown));
    EXPECT_EQ(data->Range("B2")->Value(), Variant(4.0));
    EXPECT_EQ(data->Range("B3")->Value(), Variant("ab"));
    EXPECT_TRUE(data->Range("B1")->Value().IsEmpty());
    data->Range("C1")->EntireColumn()->Insert();
    EXPECT_EQ(data->Range("E1")->Value(), Variant(20.0));
    data->Range("B3")->Delete(Variant(xlShiftUp));
    EXPECT_EQ(data->Range("B3")->Value(), Variant(true));
    EXPECT_EQ(data->Range("B2")->Value(), Variant(4.0));
    const ooxml::WorkbookDocument resaved = ooxml::ReadPackage(Resave("shifted.xlsx"));
    const ooxml::SheetDocument& sheet = resaved.sheets.at(0);
    ASSERT_EQ(sheet.arrayFormulas.size(), 1u);
    EXPECT_EQ(sheet.arrayFormulas.begin()->second, (ooxml::CellBlock{1, 5, 2, 5}));
}
