' A report workbook from VBScript: a sheet with a header, a table and a column chart under it.
'
' Usage: cscript //nologo report.vbs OUTPUT.xlsx [PROGID]
'   PROGID is the Excel to drive: "Excel.Application" (the default) starts Excel;
'   "VosExcelEngine.Application" uses the library's own spreadsheet engine, where no Excel is installed.
Option Explicit

' The enumerations of VosXLRep7 and the Excel constants this script uses (VBScript reads no type
' library, so it names them itself).
Const VosTopHeader = 0
Const VosLeftHeader = 1
Const VosChartColumn = 16
Const xlRight = -4152

Dim output, progId, xl, reporting, report, sheet, table, chart
output = WScript.Arguments(0)
progId = "Excel.Application"
If WScript.Arguments.Count > 1 Then progId = WScript.Arguments(1)

Set xl = CreateObject(progId)
Set reporting = CreateObject("VosXLRep7.VosExcelReporting")

' A report workbook for this tool, and a sheet in it.
Set report = reporting.NewReportWorkbook(xl, "Loss Analysis")
Set sheet = report.NewReportWorksheet("Losses")

' The header: a title and two label-value lines (label and value split by a tab).
sheet.AddHeader "Modelled losses", Array("Portfolio" & vbTab & "Property", "Runs" & vbTab & "10,000")
sheet.AddSeparatorRows 1

' A table of 4 regions by 2 measures, with one header row and one header column.
Set table = sheet.AddTable(4, 2, 1, 1, "Losses by region", "Gross, in USD")
table.WriteHeaderArray VosLeftHeader, 1, Array("North", "South", "East", "West")
table.WriteHeaderArray VosTopHeader, 1, Array("Mean loss", "1-in-100")
table.WriteDataToColumn 1, Array(125000, 83000, 41000, 9650.5)
table.WriteDataToColumn 2, Array(910000, 620000, 305000, 88000)
table.ConfigureColumn 1, , xlRight, xlRight, 14, "#,##0"
table.ConfigureColumn 2, , xlRight, xlRight, 14, "#,##0"
sheet.AddSeparatorRows 1

' A column chart of the mean losses, with titles and axes.
Set chart = sheet.AddChart(VosChartColumn)
chart.AddColumnData table.InteriorRange.Columns(1), "Mean loss"
chart.AddTitle "Mean loss by region"
chart.AddCategoryXAxis "Region", table.LeftHeaderRange
chart.AddValueYAxisWithNiceTicks 0, 125000, False, True, "USD", "#,##0"

report.ExcelWorkbook.SaveAs output
WScript.Echo "Report written to " & output
