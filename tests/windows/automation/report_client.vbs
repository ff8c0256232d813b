' The parity report built by a VBScript client of VosXLRep7 on the engine's automation object, with
' the calls report_parity_writer makes through the C++ API (without its tornado charts: VBScript
' makes no arrays of doubles). The two workbooks must be the same part by part. Prints
' "ALL CHECKS PASSED" when the script ran to its end.
'
' Usage: cscript //nologo report_client.vbs OUTPUT.xlsx SHEET TITLE
'   SHEET and TITLE name the Chinese sheet ("中文", "风险报告"): Wine's cscript reads a script as ANSI
'   only, so the Chinese comes through the command line.
Option Explicit

Const xlRight = -4152
Const xlSecondary = 2
Const VosLeftHeader = 1
Const VosChartColumn = 16
Const VosChartXYMarkersAndLine = 34
Const VosChartLineWithMarkers = 49

Sub AddSheet(report, name, title)
    Dim sheet, table, columns, data, curve, trend, i, years, losses
    Set sheet = report.NewReportWorksheet(name)
    sheet.AddHeader title, Array("Model" & vbTab & "Catastrophe 7.2", "Runs" & vbTab & "10,000")
    sheet.AddSeparatorRows 1
    sheet.AddHeaderRange title, Array("Portfolio" & vbTab & "Property")
    sheet.AddSeparatorRows 1

    Set table = sheet.AddTable(4, 2, 1, 1, "Premium and loss ratio", "By region")
    table.WriteHeaderArray VosLeftHeader, 1, Array("North", "South", "East", "West")
    table.WriteDataToColumn 1, Array(1250000, 830000, 410000, 96500.5)
    table.WriteDataToColumn 2, Array(0.61, 0.74, 0.58, 0.92)
    table.ConfigureColumn 1, "Premium", xlRight, xlRight, 14, "#,##0.00"
    table.ConfigureColumn 2, "Loss ratio", xlRight, xlRight, 12, "0.0%"
    table.AddRowDividerLine 2, True
    table.AddColumnDividerLine 1, True
    table.AddComment 4, 2, "Review", "Above appetite."
    sheet.AddComment table.AnchorCell, "Source", "Modelled losses, gross."
    sheet.AddSeparatorRows 1

    Set columns = sheet.AddChart(VosChartColumn)
    columns.AddColumnData table.InteriorRange.Columns(1), "Premium"
    columns.AddTitle "Premium by region"
    columns.AddSubTitle "USD"
    columns.AddLegend True
    columns.AddCategoryXAxis "Region", table.LeftHeaderRange
    columns.AddValueYAxisWithNiceTicks 0, 1250000, False, True, "Premium", "#,##0"
    sheet.AddSeparatorRows 1

    Set data = sheet.ExcelWorksheet.Range("M2")
    years = Array(10, 25, 50, 100, 250)
    losses = Array(175, 410, 740, 1240, 2160)
    For i = 0 To 4
        data.Offset(i, 0).Value = CDbl(years(i))
        data.Offset(i, 1).Value = CDbl(losses(i))
    Next
    Set curve = sheet.AddChart(VosChartXYMarkersAndLine, 400, 250)
    curve.AddXYData data.Resize(5, 1), data.Offset(0, 1).Resize(5, 1), "Gross"
    curve.AddTitle "Exceedance"
    curve.AddValueYAxisWithNiceTicks 0, 2160, False, True, "Loss", "#,##0"
    curve.AddValueXAxisWithNiceTicks 10, 250, False, True, "Return period", "0", True
    sheet.AddSeparatorRows 1

    Set trend = sheet.AddChart(VosChartLineWithMarkers, 400, 220)
    trend.AddLineData table.InteriorRange.Columns(1), "Premium"
    trend.AddLineData(table.InteriorRange.Columns(2), "Loss ratio").AxisGroup = xlSecondary
    trend.AddLegend False
    trend.AddCategoryXAxis "", table.LeftHeaderRange, True
    trend.AddValueYAxis "Premium"
    trend.AddSecondaryValueYAxis "Loss ratio", 0, 1.0, 0.25, "0%"
    sheet.AddSeparatorRows 1
End Sub

Dim reporting, xl, english, chinese, book
Set reporting = CreateObject("VosXLRep7.VosExcelReporting")
Set xl = CreateObject("VosExcelEngine.Application")
reporting.UnitTestingMode = True
Set english = reporting.NewReportWorkbook(xl, "ParityApp")
AddSheet english, "English", "Risk report"
english.UseThemes = True
AddSheet english, "English themed", "Risk report"
Set book = english.ExcelWorkbook
Set chinese = reporting.NewReportWorkbook(xl, "ParityApp", book, False, 4)
AddSheet chinese, WScript.Arguments(1), WScript.Arguments(2)
english.ActivateFirstWorksheetCreated
book.SaveAs WScript.Arguments(0)
WScript.Echo "ALL CHECKS PASSED"
