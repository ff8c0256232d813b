' VosXLRep7's application class seen from a host that makes its members global, as VBA does: the
' script names no VosExcelReporting instance and calls NewReportWorkbook, UnitTestingMode,
' WorkbookHasCreationTag, WorksheetHasCreationTag and AddComment on their own. Run by
' global_members_host; prints one line per failed check and "ALL CHECKS PASSED" when none failed.
Option Explicit

Dim failures
failures = 0

Sub Check(condition, what)
    If Not condition Then
        WScript.Echo "FAILED: " & what
        failures = failures + 1
    End If
End Sub

Const VosChartColumn = 16

Dim xl, report, sheet, table, chart, comment, headerText
Set xl = CreateObject("VosExcelEngine.Application")
UnitTestingMode = True
Check UnitTestingMode, "the global property UnitTestingMode reads back"

Set report = NewReportWorkbook(xl, "Global")
Check TypeName(report) = "_VosExcelReportWorkbook", "the global NewReportWorkbook gives a report workbook"
Check report.DefaultLanguage = 9, "the global NewReportWorkbook's defaults"
Check WorkbookHasCreationTag(report.ExcelWorkbook, "Global"), "the global WorkbookHasCreationTag"
Check Not WorkbookHasCreationTag(report.ExcelWorkbook, "Other"), "the global WorkbookHasCreationTag, another application"

Set sheet = report.NewReportWorksheet("Losses")
Check WorksheetHasCreationTag(sheet.ExcelWorksheet), "the global WorksheetHasCreationTag"
Set table = sheet.AddTable(2, 2, 1, 1, "Losses")
Check TypeName(table) = "_VosExcelTable", "a table from the sheet"
table.WriteHeaderItem 0, 1, "Gross"
headerText = "Note"
' The header text is a ByRef String: VBScript passes a variable by reference only as a Variant, so
' the variable goes in parentheses, by value.
Set comment = AddComment(table.TopHeaderRange.Cells(1, 1), (headerText), "Before reinsurance")
Check comment.Text = "Note" & vbLf & "Before reinsurance", "the global AddComment: " & comment.Text
Set chart = sheet.AddChart(VosChartColumn)
Check TypeName(chart) = "_VosExcelChart", "a chart from the sheet"

On Error Resume Next
Set report = NewReportWorkbook(Nothing, "Global")
Check Hex(Err.Number) & " " & Err.Description = "80040002 xlApp", _
      "the global NewReportWorkbook's refusal: " & Hex(Err.Number) & " " & Err.Description
On Error GoTo 0

If failures = 0 Then WScript.Echo "ALL CHECKS PASSED"
