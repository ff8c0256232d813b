Attribute VB_Name = "ReportModule"
' A report workbook from VBA in Excel: a sheet with a header, a table and a column chart under it.
' In the VBA editor, Tools > References: tick "VosXLRep7". VosExcelReporting is a global class, so
' its members are called without naming an instance (NewReportWorkbook, UnitTestingMode, ...).
Option Explicit

Public Sub BuildLossReport()
    Dim report As VosExcelReportWorkbook
    Dim sheet As VosExcelReportWorksheet
    Dim table As VosExcelTable
    Dim chart As VosExcelChart
    Dim headerLines() As Variant
    Dim minValues(1 To 3) As Double, maxValues(1 To 3) As Double

    ' A report workbook for this tool, and a sheet in it.
    Set report = NewReportWorkbook(Application, "Loss Analysis")
    Set sheet = report.NewReportWorksheet("Losses")

    ' The header: a title and two label-value lines (label and value split by a tab).
    headerLines = Array("Portfolio" & vbTab & "Property", "Runs" & vbTab & "10,000")
    sheet.AddHeader "Modelled losses", headerLines
    sheet.AddSeparatorRows 1

    ' A table of 4 regions by 2 measures, with one header row and one header column.
    Set table = sheet.AddTable(4, 2, 1, 1, "Losses by region", "Gross, in USD")
    table.WriteHeaderArray VosLeftHeader, 1, Array("North", "South", "East", "West")
    table.WriteHeaderArray VosTopHeader, 1, Array("Mean loss", "1-in-100")
    table.WriteDataToColumn 1, Array(125000, 83000, 41000, 9650.5)
    table.WriteDataToColumn 2, Array(910000, 620000, 305000, 88000)
    table.ConfigureColumn 1, interiorHAlign:=xlRight, headerHAlign:=xlRight, columnWidth:=14, numberFormat:="#,##0"
    table.ConfigureColumn 2, interiorHAlign:=xlRight, headerHAlign:=xlRight, columnWidth:=14, numberFormat:="#,##0"
    sheet.AddSeparatorRows 1

    ' A column chart of the mean losses, with titles and axes.
    Set chart = sheet.AddChart(VosChartColumn)
    chart.AddColumnData table.InteriorRange.Columns(1), "Mean loss"
    chart.AddTitle "Mean loss by region"
    chart.AddCategoryXAxis "Region", table.LeftHeaderRange
    chart.AddValueYAxisWithNiceTicks 0, 125000, False, True, "USD", "#,##0"
    sheet.AddSeparatorRows 1

    ' A tornado of three sensitivities: VBA's typed, 1-based arrays of doubles.
    minValues(1) = -48: minValues(2) = -12.5: minValues(3) = 4
    maxValues(1) = 52: maxValues(2) = 30: maxValues(3) = 16
    Set chart = sheet.AddChart(VosChartTornado, 428, sheet.RecommendedTornadoChartHeight(3))
    chart.AddTornadoData 3, minValues, maxValues
    chart.AddTitle "Sensitivity of the mean loss"
End Sub
